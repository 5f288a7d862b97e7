#pragma once

#include <functional>

class wxString;
class wxTextCtrl;

namespace mindloft::platform {

// What the toolkit does not offer for the desktop's own text boxes.

/// Shows every character of a box of one line as `character`; 0 shows the text itself. While it is masked
/// the desktop neither copies nor drags the text.
void SetPasswordCharacter(wxTextCtrl& box, char32_t character);

/// What screen readers call the box. The function is asked whenever they do, or, where the desktop keeps the
/// name, each time the box gets the focus; it must not throw.
void SetAccessibleName(wxTextCtrl& box, std::function<wxString()> name);
/// The name as a screen reader gets it.
wxString AccessibleName(wxTextCtrl& box);

/// The number of positions that a line break takes in a box of many lines; in texts it is one character.
int LineBreakPositions();

}  // namespace mindloft::platform
