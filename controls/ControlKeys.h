#pragma once

#include <functional>

class wxKeyEvent;
class wxKeyboardState;
class wxTextCtrl;

namespace mindloft {

// Keys as the input controls tell them to the form that holds them.

/// The key's number on the keyboard, as Windows counts: letters and digits are their characters (65: A), 38
/// and 40 the Up and Down arrows, 112 F1. The toolkit's own code for a key that has no such number.
int ControlKeyCode(const wxKeyEvent& event);

/// 1: Shift, 2: Ctrl, 4: Alt; their sum when several are held.
int ShiftState(const wxKeyboardState& keys);

/// The character that a wxEVT_CHAR types, 1 to 26 for Ctrl with a letter; 0 when the key types none (arrows,
/// Delete, function keys).
int TypedCharacter(const wxKeyEvent& event);

/// Handles wxEVT_CHAR of a box. `keyPress` gets the typed character and may change it, or cancel it by 0.
/// Enter, Tab and Esc reach the form even when they are cancelled: they are its own keys and type nothing
/// into one line.
void HandleTypedKey(wxKeyEvent& event, wxTextCtrl& box, const std::function<void(int& keyAscii)>& keyPress);

}  // namespace mindloft
