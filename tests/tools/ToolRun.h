#pragma once

#include <string>
#include <vector>

namespace mindloft::test {

/// One run of the tool in this process, its streams kept.
struct ToolRun {
  /// `typed` answers the questions at the terminal one after the other; without answers there is none.
  explicit ToolRun(const std::vector<std::string>& arguments, const std::string& input = {},
                   std::vector<std::string> typed = {});

  int status = 0;
  std::string out, err;
  std::vector<std::string> prompts;
};

}  // namespace mindloft::test
