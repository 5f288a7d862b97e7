#include "tests/tools/ToolRun.h"

#include <sstream>

#include "tools/DirectoryTool.h"

namespace mindloft::test {

ToolRun::ToolRun(const std::vector<std::string>& arguments, const std::string& input,
                 std::vector<std::string> typed) {
  std::istringstream in(input);
  std::ostringstream outStream, errStream;
  Console console{in, outStream, errStream,
                  [&](const std::string& prompt, platform::Echo echo) -> std::optional<std::string> {
                    prompts.push_back((echo == platform::Echo::Hidden ? "hidden " : "shown ") + prompt);
                    if (prompts.size() > typed.size()) return {};
                    return typed[prompts.size() - 1];
                  }};
  status = RunDirectoryTool(arguments, console);
  out = outStream.str();
  err = errStream.str();
}

}  // namespace mindloft::test
