#pragma once

class wxTextCtrl;

namespace mindloft {

/// The box of several lines that has the focus; null when something else has it.
wxTextCtrl* FocusedLines();

/// Presses Ctrl+Enter in the box: unless a handler of it takes the key, the selection becomes the beginning
/// of a new line. A box that cannot be written into stays as it is.
void BreakLine(wxTextCtrl& box);

}  // namespace mindloft
