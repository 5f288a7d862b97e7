#pragma once

#include <wx/string.h>

class wxStaticText;

namespace mindloft {

/// Shows what the user should know now: the text, as SetWrappedLabel does, with the details as its tool tip;
/// no tool tip without details.
void SetHint(wxStaticText& label, const wxString& text, const wxString& details, int width);

}  // namespace mindloft
