#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <list>
#include <optional>
#include <string>

#include "platform/RegistryStore.h"
#include "tests/support/ChildProcess.h"
#include "tests/support/TemporaryFolder.h"

namespace mindloft::test {

/// Starts real consoles, with settings, log and directory of the test's own. Where the system keeps the
/// settings for all programs of the user, the user's own are put back afterwards.
class ConsoleFixture : public testing::Test {
 protected:
  ConsoleFixture();
  void SetUp() override;
  void TearDown() override;

  void MakeDirectory() const;
  void Set(const std::string& setting, const platform::RegistryValue& value);
  void SetFormPos(const std::string& name, const platform::RegistryValue& value);
  /// A console that works on the test's directory.
  ChildProcess& Start(std::vector<std::string> arguments = {});
  ChildProcess& StartAlone(std::vector<std::string> arguments);
  /// From here on a copy of the console with a "resources" folder of its own, whose path this returns, is
  /// started.
  std::filesystem::path CopyProgram();
  /// Waits until the consoles have logged the text `times` times; fails the test when they never do.
  void WaitForLog(const std::string& text, int times = 1);
  int CountInLog(const std::string& text) const;
  /// Its status; -1 and a failed test when it does not end.
  int WaitForEnd(ChildProcess& console);
  /// The one of them that has ended.
  static ChildProcess& WaitForEither(ChildProcess& one, ChildProcess& other);

  static constexpr char kWindow[] = "start: the main window is shown";
  static constexpr char kLogin[] = "start: asking for name and password";
  static constexpr char kHandOver[] = "start: a second instance handed over";

  TemporaryFolder folder_;
  const std::filesystem::path file_ = folder_ / "mine.directory";

 private:
  using Values = std::vector<std::pair<std::string, platform::RegistryValue>>;

  std::shared_ptr<platform::RegistryStore> registry_;
  Values savedSettings_, savedFormPos_;
  std::filesystem::path program_ = ProgramBeside("mindloft-console");
  std::list<ChildProcess> consoles_;
  std::uintmax_t logStart_ = 0;
};

}  // namespace mindloft::test
