#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace mindloft::test {

/// Another program, started by a test and read line by line from its standard output. Killed when this goes.
class ChildProcess {
 public:
  /// Arguments are without spaces and quotation marks. Throws std::runtime_error when it cannot be started.
  ChildProcess(const std::filesystem::path& program, const std::vector<std::string>& arguments);
  ~ChildProcess();
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;

  /// The next complete line without its end; nothing when the output has ended.
  std::optional<std::string> ReadLine();
  /// Whether it has ended by itself or was killed; does not wait.
  bool HasEnded();
  /// Ends it at once, as a crash would; does nothing when it has ended.
  void Kill();
  /// Its exit status, or -1 when it was killed.
  int Wait();

 private:
  /// More bytes of the output; empty at its end.
  std::string ReadSome();

  struct Handles;
  std::unique_ptr<Handles> handles_;
  std::string pending_;
};

/// The program of that name beside the running test program.
std::filesystem::path ProgramBeside(const std::string& name);

}  // namespace mindloft::test
