#include "platform/Unicode.h"

#include <utf8proc.h>

#include <algorithm>

namespace mindloft::platform {
namespace {

constexpr utf8proc_int32_t Replacement = 0xFFFD;

/// Calls `action` with each code point; -1 for a broken byte.
template <typename Action>
void ForEachCodePoint(std::string_view utf8, Action action) {
  auto bytes = reinterpret_cast<const utf8proc_uint8_t*>(utf8.data());
  auto left = static_cast<utf8proc_ssize_t>(utf8.size());
  while (left > 0) {
    utf8proc_int32_t point = -1;
    auto length = utf8proc_iterate(bytes, left, &point);
    if (length <= 0) {
      point = -1;
      length = 1;
    }
    action(point);
    bytes += length;
    left -= length;
  }
}

void Append(std::string& text, utf8proc_int32_t point) {
  utf8proc_uint8_t bytes[4];
  auto length = utf8proc_encode_char(point, bytes);
  text.append(reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(length));
}

/// What the character stands for when its width is left aside; itself when it is of the usual width.
utf8proc_int32_t WithoutWidth(utf8proc_int32_t point, utf8proc_decomp_type_t width) {
  if (utf8proc_get_property(point)->decomp_type != width) return point;
  constexpr auto Options = static_cast<utf8proc_option_t>(UTF8PROC_DECOMPOSE | UTF8PROC_COMPAT);
  utf8proc_int32_t result[4] = {};
  int boundary = 0;
  const auto length = utf8proc_decompose_char(point, result, 4, Options, &boundary);
  return length == 1 ? result[0] : point;
}

bool IsLeading(char16_t unit) {
  return unit >= 0xD800 && unit <= 0xDBFF;
}
bool IsTrailing(char16_t unit) {
  return unit >= 0xDC00 && unit <= 0xDFFF;
}

}  // namespace

std::u16string Utf16FromUtf8(std::string_view utf8) {
  std::u16string result;
  result.reserve(utf8.size());
  ForEachCodePoint(utf8, [&](utf8proc_int32_t point) {
    if (point < 0) point = Replacement;
    if (point < 0x10000) {
      result += static_cast<char16_t>(point);
    } else {
      result += static_cast<char16_t>(0xD800 + ((point - 0x10000) >> 10));
      result += static_cast<char16_t>(0xDC00 + ((point - 0x10000) & 0x3FF));
    }
  });
  return result;
}

std::string Utf8FromUtf16(std::u16string_view utf16) {
  std::string result;
  result.reserve(utf16.size());
  for (std::size_t i = 0; i < utf16.size(); ++i) {
    utf8proc_int32_t point = utf16[i];
    if (IsLeading(utf16[i]) && i + 1 < utf16.size() && IsTrailing(utf16[i + 1])) {
      point = 0x10000 + ((point - 0xD800) << 10) + (utf16[++i] - 0xDC00);
    } else if (IsLeading(utf16[i]) || IsTrailing(utf16[i])) {
      point = Replacement;
    }
    Append(result, point);
  }
  return result;
}

std::string CleanUtf8(std::string_view utf8) {
  std::string result;
  result.reserve(utf8.size());
  ForEachCodePoint(utf8, [&](utf8proc_int32_t point) { Append(result, point < 0 ? Replacement : point); });
  return result;
}

bool IsUtf8(std::string_view text) {
  bool valid = true;
  ForEachCodePoint(text, [&](utf8proc_int32_t point) { valid = valid && point >= 0; });
  return valid;
}

bool HasControlCharacter(std::string_view text) {
  return std::any_of(text.begin(), text.end(),
                     [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; });
}

std::string UpperCase(std::string_view utf8) {
  std::string result;
  result.reserve(utf8.size());
  ForEachCodePoint(utf8, [&](utf8proc_int32_t point) {
    Append(result, point < 0 ? Replacement : utf8proc_toupper(point));
  });
  return result;
}

std::size_t BytesOfCharacters(std::string_view utf8, std::size_t most) {
  auto bytes = reinterpret_cast<const utf8proc_uint8_t*>(utf8.data());
  std::size_t at = 0, count = 0, whole = 0;
  utf8proc_int32_t before = -1, state = 0;
  for (; at < utf8.size() && count <= most; ++count) {
    utf8proc_int32_t point = -1;
    auto length = utf8proc_iterate(
        bytes + at, static_cast<utf8proc_ssize_t>(std::min(utf8.size() - at, std::size_t{4})), &point);
    if (length <= 0) {
      point = Replacement;
      length = 1;
    }
    if (before < 0 || utf8proc_grapheme_break_stateful(before, point, &state)) whole = at;
    before = point;
    at += static_cast<std::size_t>(length);
  }
  return count <= most ? utf8.size() : whole;
}

char32_t NarrowForm(char32_t character) {
  // The block of half-width and full-width forms.
  constexpr utf8proc_int32_t FirstNarrow = 0xFF61;
  constexpr utf8proc_int32_t LastNarrow = 0xFFEE;
  if (character > 0x10FFFF) return character;
  const auto point = static_cast<utf8proc_int32_t>(character);
  const auto narrow = WithoutWidth(point, UTF8PROC_DECOMP_TYPE_WIDE);
  if (narrow != point) return static_cast<char32_t>(narrow);
  for (auto each = FirstNarrow; each <= LastNarrow; ++each) {
    if (each != point && WithoutWidth(each, UTF8PROC_DECOMP_TYPE_NARROW) == point)
      return static_cast<char32_t>(each);
  }
  return character;
}

}  // namespace mindloft::platform
