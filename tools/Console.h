#pragma once

#include <functional>
#include <iosfwd>
#include <optional>
#include <string>

#include "platform/Terminal.h"

namespace mindloft {

/// Where a command reads and writes.
struct Console {
  std::istream& in;
  std::ostream& out;
  std::ostream& err;
  /// Asks the person at the terminal; nothing when there is none or the person gave up.
  std::function<std::optional<std::string>(const std::string& prompt, platform::Echo echo)> ask;
};

}  // namespace mindloft
