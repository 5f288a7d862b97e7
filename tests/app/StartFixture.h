#pragma once

#include <string>
#include <vector>

#include "app/StartServices.h"
#include "tests/support/gui/PrivateServices.h"

namespace mindloft::test {

/// A start of the console whose every look at the world around it is written down.
class StartFixture : public PrivateServices {
 protected:
  static constexpr char kUser[] = "Root", kPassword[] = "correct horse battery";

  void SetUp() override;
  void TearDown() override;

  /// A directory with one administrator.
  void MakeDirectory() const;
  /// Settings that log in automatically there.
  static void SetAutoLogin(const wxString& enabled, const wxString& password = kPassword);
  void SetIsLogin(const platform::RegistryValue& value);
  /// Services that write "shift", "open", "dialog", "raise", "window" and "handOver" into `trace_`. The
  /// directory is the fixture's, wherever a connection leads; `targets_` keeps where they wanted to go.
  StartServices TracingServices();
  std::string Trace() const;

  const std::filesystem::path file_ = folder_ / "mine.directory";
  std::vector<std::string> trace_;
  std::vector<Corvane::ConnectionTarget> targets_;
  std::vector<bool> shift_;  ///< what the tests of the key find, in turn; up when there are no more
  bool loginResult_ = true;  ///< of the dialog
  bool reachable_ = true;    ///< whether connections reach a directory
  wxString loginTitle_;

 private:
  bool NextShift();
};

}  // namespace mindloft::test
