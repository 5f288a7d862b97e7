#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace mindloft::platform {

// Between UTF-8 and UTF-16. What is broken (a wrong byte, half a surrogate pair) becomes U+FFFD.

std::u16string Utf16FromUtf8(std::string_view utf8);
std::string Utf8FromUtf16(std::u16string_view utf16);

/// The text with U+FFFD in place of broken bytes.
std::string CleanUtf8(std::string_view utf8);
bool IsUtf8(std::string_view text);
/// One of U+0000 to U+001F or U+007F.
bool HasControlCharacter(std::string_view text);

/// Folded for comparing without regard to case, character by character as registries do.
std::string UpperCase(std::string_view utf8);

/// The number of bytes of the longest beginning that has at most `most` characters (code points) and does not
/// part what a reader sees as one: a letter and its accents, the people of a family emoji.
std::size_t BytesOfCharacters(std::string_view utf8, std::size_t most);

/// The narrow (half-width) form of a full-width character: '5' of U+FF15, U+FF71 of U+30A2. A character that
/// has none is its own, also one whose narrow form takes two characters.
char32_t NarrowForm(char32_t character);

}  // namespace mindloft::platform
