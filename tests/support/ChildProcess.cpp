#include "tests/support/ChildProcess.h"

#include "platform/Paths.h"

namespace mindloft::test {

std::optional<std::string> ChildProcess::ReadLine() {
  for (;;) {
    if (auto end = pending_.find('\n'); end != std::string::npos) {
      std::string line = pending_.substr(0, end);
      pending_.erase(0, end + 1);
      if (line.ends_with('\r')) line.pop_back();
      return line;
    }
    std::string more = ReadSome();
    if (more.empty()) return {};
    pending_ += more;
  }
}

std::filesystem::path ProgramBeside(const std::string& name) {
  // The extension is the running program's.
  auto program = platform::ProgramFolder() / name;
  return std::filesystem::exists(program) ? program : program += ".exe";
}

}  // namespace mindloft::test
