#pragma once

#include <wx/string.h>

#include <string>
#include <string_view>

namespace mindloft {

// The one pair of conversions between the back end's UTF-8 and the windows' texts. Broken UTF-8 becomes
// U+FFFD.

wxString ToWx(std::string_view utf8);
std::string ToUtf8(const wxString& text);

}  // namespace mindloft
