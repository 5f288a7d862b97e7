#pragma once

#include <string_view>

namespace mindloft::Corvane {

/// The text without the blanks around it.
inline std::string_view Trimmed(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r\n";
  const auto first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

}  // namespace mindloft::Corvane
