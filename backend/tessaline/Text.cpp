#include "backend/tessaline/Text.h"

#include <algorithm>
#include <type_traits>

namespace mindloft {
namespace {

constexpr std::string_view replacementCharacter = "\xEF\xBF\xBD";

/// The length of the well-formed sequence at the start of `bytes`; 0 when there is none.
std::size_t SequenceLength(std::string_view bytes) {
  auto byte = [&](std::size_t at) { return static_cast<unsigned char>(bytes[at]); };
  unsigned char lead = byte(0);
  if (lead < 0x80) return 1;
  std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || bytes.size() < length) return 0;
  for (std::size_t at = 1; at < length; ++at) {
    if ((byte(at) & 0xC0) != 0x80) return 0;
  }
  bool overlong = (lead == 0xE0 && byte(1) < 0xA0) || (lead == 0xF0 && byte(1) < 0x90);
  bool outside = (lead == 0xED && byte(1) > 0x9F) || (lead == 0xF4 && byte(1) > 0x8F);
  return overlong || outside ? 0 : length;
}

bool IsAscii(std::string_view bytes) {
  return std::all_of(bytes.begin(), bytes.end(),
                     [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

std::string Repaired(std::string_view bytes) {
  std::string repaired;
  repaired.reserve(bytes.size() + 8);
  while (!bytes.empty()) {
    auto length = SequenceLength(bytes);
    repaired += length ? bytes.substr(0, length) : replacementCharacter;
    bytes.remove_prefix(std::max<std::size_t>(length, 1));
  }
  return repaired;
}

bool IsHighSurrogate(std::uint32_t unit) {
  return unit >= 0xD800 && unit < 0xDC00;
}
bool IsLowSurrogate(std::uint32_t unit) {
  return unit >= 0xDC00 && unit < 0xE000;
}

/// A copy in which each surrogate without its partner is U+FFFD: such a text has no UTF-8 form.
wxString WithoutLoneSurrogates(const wxString& text) {
  std::wstring units = text.ToStdWstring();
  for (std::size_t at = 0; at < units.size(); ++at) {
    auto unit = static_cast<std::make_unsigned_t<wchar_t>>(units[at]);
    bool paired = sizeof(wchar_t) == 2 && IsHighSurrogate(unit) && at + 1 < units.size() &&
                  IsLowSurrogate(static_cast<std::uint32_t>(units[at + 1]));
    if (paired) {
      ++at;
    } else if (IsHighSurrogate(unit) || IsLowSurrogate(unit)) {
      units[at] = 0xFFFD;
    }
  }
  return wxString(units);
}

}  // namespace

bool IsValidUtf8(std::string_view bytes) {
  while (!bytes.empty()) {
    auto length = SequenceLength(bytes);
    if (length == 0) return false;
    bytes.remove_prefix(length);
  }
  return true;
}

wxString ToWx(std::string_view utf8) {
  // Most texts are, and it is several times as fast.
  if (IsAscii(utf8)) return wxString(std::wstring(utf8.begin(), utf8.end()));
  if (IsValidUtf8(utf8)) return wxString::FromUTF8(utf8.data(), utf8.size());
  std::string repaired = Repaired(utf8);
  return wxString::FromUTF8(repaired.data(), repaired.size());
}

std::string ToUtf8(const wxString& text) {
  std::string utf8 = text.utf8_string();
  bool converted = text.empty() || (!utf8.empty() && IsValidUtf8(utf8));
  return converted ? utf8 : WithoutLoneSurrogates(text).utf8_string();
}

}  // namespace mindloft
