#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "backend/directory/TextLengths.h"

namespace mindloft {

/// The number of code points; nothing when the text is no UTF-8.
std::optional<std::size_t> CharacterCount(std::string_view utf8);

/// The name without blanks around it. NameMissing when nothing visible is left; else like Line.
std::string CheckedName(std::string_view text, const char* field = "name");

/// One line: no control characters, line separators or characters that turn the direction of what follows.
/// TextInvalid, TextTooLong.
std::string CheckedLine(std::string_view text, const char* field, std::size_t length = kLineLength);

/// Several lines: tabulator, carriage return and line feed are allowed. TextInvalid, TextTooLong.
std::string CheckedText(std::string_view text, const char* field, std::size_t length = kTextLength);

}  // namespace mindloft
