#pragma once

#include <wx/string.h>

class wxStaticText;

namespace mindloft {

/// Sets the label in lines of at most `width` pixels. Lines break at blanks; a word that is longer than a
/// line, a path or a script without blanks, breaks where the line is full.
void SetWrappedLabel(wxStaticText& label, const wxString& text, int width);

}  // namespace mindloft
