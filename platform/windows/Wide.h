#pragma once

#include <string>
#include <string_view>

namespace mindloft::platform {

// Between UTF-8 and what the system's W-calls take.

std::wstring Wide(std::string_view utf8);
std::string Narrow(std::wstring_view wide);

/// What the system says about an error of GetLastError or a registry call: its number and text.
std::string SystemErrorText(unsigned long error);

}  // namespace mindloft::platform
