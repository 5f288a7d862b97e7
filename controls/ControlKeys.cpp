#include "controls/ControlKeys.h"

#include <wx/event.h>
#include <wx/textctrl.h>

namespace mindloft {
namespace {

struct KeyNumber {
  int toolkit;
  int number;
};

constexpr KeyNumber kKeys[] = {
    {WXK_SHIFT, 16},
    {WXK_CONTROL, 17},
    {WXK_ALT, 18},
    {WXK_PAUSE, 19},
    {WXK_CAPITAL, 20},
    {WXK_PAGEUP, 33},
    {WXK_PAGEDOWN, 34},
    {WXK_END, 35},
    {WXK_HOME, 36},
    {WXK_LEFT, 37},
    {WXK_UP, 38},
    {WXK_RIGHT, 39},
    {WXK_DOWN, 40},
    {WXK_SNAPSHOT, 44},
    {WXK_INSERT, 45},
    {WXK_DELETE, 46},
    {WXK_WINDOWS_LEFT, 91},
    {WXK_WINDOWS_RIGHT, 92},
    {WXK_WINDOWS_MENU, 93},
    {WXK_NUMLOCK, 144},
    {WXK_SCROLL, 145},
    {WXK_NUMPAD_ENTER, 13},
    {WXK_NUMPAD_PAGEUP, 33},
    {WXK_NUMPAD_PAGEDOWN, 34},
    {WXK_NUMPAD_END, 35},
    {WXK_NUMPAD_HOME, 36},
    {WXK_NUMPAD_LEFT, 37},
    {WXK_NUMPAD_UP, 38},
    {WXK_NUMPAD_RIGHT, 39},
    {WXK_NUMPAD_DOWN, 40},
    {WXK_NUMPAD_INSERT, 45},
    {WXK_NUMPAD_DELETE, 46},
    {WXK_NUMPAD_MULTIPLY, 106},
    {WXK_NUMPAD_ADD, 107},
    {WXK_NUMPAD_SUBTRACT, 109},
    {WXK_NUMPAD_DECIMAL, 110},
    {WXK_NUMPAD_DIVIDE, 111},
};

bool BelongsToForm(int character) {
  return character == WXK_RETURN || character == WXK_TAB || character == WXK_ESCAPE;
}

}  // namespace

int ControlKeyCode(const wxKeyEvent& event) {
  const int key = event.GetKeyCode();
  for (const KeyNumber& each : kKeys) {
    if (each.toolkit == key) return each.number;
  }
  if (key >= WXK_F1 && key <= WXK_F24) return 112 + key - WXK_F1;
  if (key >= WXK_NUMPAD0 && key <= WXK_NUMPAD9) return 96 + key - WXK_NUMPAD0;
  return key;
}

int ShiftState(const wxKeyboardState& keys) {
  return (keys.ShiftDown() ? 1 : 0) + (keys.ControlDown() ? 2 : 0) + (keys.AltDown() ? 4 : 0);
}

int TypedCharacter(const wxKeyEvent& event) {
  const int key = event.GetKeyCode();
  int character = static_cast<int>(event.GetUnicodeKey());
  if (key == WXK_DELETE) return 0;
  if (key == WXK_NUMPAD_ENTER) return WXK_RETURN;
  // Alt Gr, which types characters, is told as Ctrl with Alt.
  const bool altGr = event.ControlDown() && event.AltDown();
  if (event.AltDown() && !altGr) return 0;
  const bool letter = (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
  if (event.ControlDown() && !altGr && letter) character &= 0x1F;
  return character;
}

void HandleTypedKey(wxKeyEvent& event, wxTextCtrl& box, const std::function<void(int& keyAscii)>& keyPress) {
  const int typed = TypedCharacter(event);
  if (typed == 0) {
    event.Skip();
    return;
  }
  int key = typed;
  keyPress(key);
  if (key == typed || BelongsToForm(typed))
    event.Skip();
  else if (key > 0 && box.IsEditable())
    box.WriteText(wxString(wxUniChar(static_cast<unsigned int>(key))));
}

}  // namespace mindloft
