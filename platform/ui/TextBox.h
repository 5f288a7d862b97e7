#pragma once

#include <functional>

class wxString;
class wxTextCtrl;

namespace mindloft::platform {

// What the toolkit does not offer for the desktop's own text boxes.

/// Shows every character of a box of one line as `character`; 0 shows the text itself. While it is masked
/// the desktop neither copies nor drags the text.
void SetPasswordCharacter(wxTextCtrl& box, char32_t character);

/// Lets the box hold as much as the desktop's box can; some begin with less.
void LiftTextLimit(wxTextCtrl& box);

/// Makes a box without a border the inside of a frame that is drawn around it: it draws neither a frame nor a
/// focus of its own, and its text stands where the desktop's own box shows it. The frame takes `around`
/// pixels at its left and right already.
void PutInsideFrame(wxTextCtrl& box, int around);

/// Underlines the text as its font tells, where the desktop does not do so by itself.
void ApplyUnderline(wxTextCtrl& box);

/// Lets the ground of the form be seen through a box that is only read and has no colour of its own.
void ShowGround(wxTextCtrl& box);

/// What screen readers call the box. The function is asked whenever they do, or, where the desktop keeps the
/// name, each time the box gets the focus; it must not throw.
void SetAccessibleName(wxTextCtrl& box, std::function<wxString()> name);
/// The name as a screen reader gets it.
wxString AccessibleName(wxTextCtrl& box);

/// The number of positions that a line break takes in a box of many lines; in texts it is one character.
int LineBreakPositions();

}  // namespace mindloft::platform
