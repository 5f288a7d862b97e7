#pragma once

#include <wx/string.h>

class wxStaticText;

namespace mindloft {

/// Sets the label in lines of at most `width` pixels. Lines break at blanks and after the separators of
/// a path; a word that is longer than a line, as in a script without blanks, breaks where the line is full.
void SetWrappedLabel(wxStaticText& label, const wxString& text, int width);

}  // namespace mindloft
