#pragma once

#include <string>
#include <string_view>

namespace mindloft::platform {

// For channels that carry nothing but plain ASCII unharmed: every other byte, and "%", becomes "%" and two
// hexadecimal digits.

std::string PercentEncoded(std::string_view text);

/// A "%" without two digits after it stands for itself, so that a text which nobody encoded mostly survives.
std::string PercentDecoded(std::string_view text);

}  // namespace mindloft::platform
