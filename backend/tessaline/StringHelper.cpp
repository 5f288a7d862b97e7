#include "backend/tessaline/StringHelper.h"

namespace mindloft::Tessaline {
namespace {

/// The White_Space property of Unicode's character database (PropList.txt).
bool IsWhiteSpace(std::uint32_t c) {
  return (c >= 0x09 && c <= 0x0D) || c == 0x20 || c == 0x85 || c == 0xA0 || c == 0x1680 ||
         (c >= 0x2000 && c <= 0x200A) || c == 0x2028 || c == 0x2029 || c == 0x202F || c == 0x205F ||
         c == 0x3000;
}

}  // namespace

wxString StringHelper::JoinStrings(const std::vector<wxString>& texts, const wxString& separator) const {
  wxString joined;
  for (std::size_t at = 0; at < texts.size(); ++at) {
    if (at > 0) joined += separator;
    joined += texts[at];
  }
  return joined;
}

std::int32_t StringHelper::Length(const wxString& text) const {
  // Where a text is stored in 16-bit units, the second unit of a pair does not count.
  std::int32_t length = 0;
  for (wxUniChar c : text) {
    bool secondOfPair = sizeof(wchar_t) == 2 && c.GetValue() >= 0xDC00 && c.GetValue() < 0xE000;
    if (!secondOfPair) ++length;
  }
  return length;
}

bool StringHelper::IsBlank(const wxString& text) const {
  for (wxUniChar c : text) {
    if (!IsWhiteSpace(c.GetValue())) return false;
  }
  return true;
}

}  // namespace mindloft::Tessaline
