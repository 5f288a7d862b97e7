#include "controls/texts/TextChange.h"

#include <algorithm>

#include "backend/tessaline/Text.h"
#include "controls/numbers/FilterKey.h"
#include "platform/Unicode.h"

namespace mindloft {
namespace {

bool IsTrailingUnit(wchar_t unit) {
  return unit >= 0xDC00 && unit <= 0xDFFF;
}

/// Line breaks inside become one blank for each run; those at the ends, which come with a copied line or
/// cell, go.
wxString OneLine(const wxString& text) {
  wxString line;
  bool isBroken = false;
  for (const wxUniChar each : text) {
    if (each == '\n' || each == '\r' || each == 0x2028 || each == 0x2029) {
      isBroken = true;
      continue;
    }
    if (isBroken && !line.empty()) line += ' ';
    isBroken = false;
    line += each == '\t' ? wxUniChar(' ') : each;
  }
  return line;
}

/// With the system's line breaks as one character, and without what no box shows.
wxString WithoutControls(const wxString& text) {
  wxString result;
  for (const wxUniChar each : text) {
    const bool isControl = each < 0x20 || each == 0x7F;
    if (!isControl || each == '\n' || each == '\t') result += each;
  }
  return result;
}

wxString OnlyNumber(const wxString& text) {
  wxString result;
  for (const wxUniChar each : text) {
    int key = static_cast<int>(each.GetValue());
    FilterKey(kNumberCharacters, key, true);
    if (key > 0x20) result += wxUniChar(static_cast<unsigned int>(key));
  }
  return result;
}

}  // namespace

wxString TextChange::Applied(const wxString& before) const {
  return before.Left(at) + inserted + before.Mid(at + removed.length());
}

wxString TextChange::Reverted(const wxString& after) const {
  return after.Left(at) + removed + after.Mid(at + inserted.length());
}

TextChange DifferenceOf(const wxString& before, const wxString& after) {
  const std::wstring& from = before.ToStdWstring();
  const std::wstring& to = after.ToStdWstring();
  const std::size_t shorter = std::min(from.size(), to.size());
  auto start = static_cast<std::size_t>(
      std::mismatch(from.begin(), from.begin() + static_cast<std::ptrdiff_t>(shorter), to.begin()).first -
      from.begin());
  // Not between the halves of one character.
  const auto isInside = [&](std::size_t fromAt, std::size_t toAt) {
    return (fromAt < from.size() && IsTrailingUnit(from[fromAt])) ||
           (toAt < to.size() && IsTrailingUnit(to[toAt]));
  };
  while (start > 0 && isInside(start, start)) --start;
  std::size_t end = 0;
  while (end < shorter - start && from[from.size() - end - 1] == to[to.size() - end - 1]) ++end;
  while (end > 0 && isInside(from.size() - end, to.size() - end)) --end;
  return {start, from.substr(start, from.size() - end - start), to.substr(start, to.size() - end - start)};
}

wxString Permitted(const wxString& inserted, std::size_t others, const TextRules& rules) {
  wxString text = inserted;
  if (!rules.manyLines) text = OneLine(text);
  text = WithoutControls(text);
  if (rules.isNumber) text = OnlyNumber(text);
  if (rules.maxLength <= 0) return text;
  const auto most = static_cast<std::size_t>(rules.maxLength);
  return FirstCharacters(text, most > others ? most - others : 0);
}

char32_t FirstCharacterOf(const wxString& text) {
  const auto units = platform::Utf16FromUtf8(ToUtf8(text).substr(0, 4));
  if (units.empty()) return 0;
  constexpr char32_t Leading = 0xD800, Trailing = 0xDC00, Beyond = 0x10000;
  const bool isPair = units.size() > 1 && units[0] >= Leading && units[0] < Trailing;
  return isPair ? Beyond + ((units[0] - Leading) << 10) + (units[1] - Trailing) : units[0];
}

std::size_t CountCharacters(const wxString& text) {
  const std::wstring& units = text.ToStdWstring();
  if constexpr (sizeof(wchar_t) > 2) return units.size();
  return units.size() - static_cast<std::size_t>(std::count_if(units.begin(), units.end(), IsTrailingUnit));
}

wxString FirstCharacters(const wxString& text, std::size_t most) {
  if (text.length() <= most) return text;
  const std::string utf8 = ToUtf8(text);
  return ToWx(std::string_view(utf8).substr(0, platform::BytesOfCharacters(utf8, most)));
}

wxString Holdable(const wxString& text) {
  wxString result = text;
  result.Replace(wxString(wxUniChar(0)), wxString(wxUniChar(0xFFFD)));
  return result;
}

}  // namespace mindloft
