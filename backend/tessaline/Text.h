#pragma once

#include <wx/string.h>

#include <string>
#include <string_view>

namespace mindloft {

// The one pair of conversions between the back end's UTF-8 and the windows' texts. Broken UTF-8 becomes
// U+FFFD.

wxString ToWx(std::string_view utf8);
std::string ToUtf8(const wxString& text);

/// Whether the bytes are well-formed UTF-8 (no overlong forms, no surrogates, nothing past U+10FFFF).
bool IsValidUtf8(std::string_view bytes);

}  // namespace mindloft
