#pragma once

#include <wx/string.h>

namespace mindloft {

/// What a hyperlink leads to: the address itself, or, when it names no scheme ("www.example.com/help"), the
/// web page of that name.
wxString HyperlinkAddress(const wxString& url);

}  // namespace mindloft
