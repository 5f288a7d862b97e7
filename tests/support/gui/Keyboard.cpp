#include "tests/support/gui/Keyboard.h"

#include <wx/event.h>
#include <wx/window.h>

namespace mindloft::test {
namespace {

wxKeyEvent KeyEvent(wxEventType type, wxWindow& control, int keyCode, int modifiers) {
  wxKeyEvent event(type);
  event.SetEventObject(&control);
  event.SetId(control.GetId());
  event.m_keyCode = keyCode;
  event.m_uniChar = keyCode < WXK_START || keyCode > WXK_WINDOWS_MENU ? keyCode : 0;
  event.SetControlDown(modifiers & wxMOD_CONTROL);
  event.SetShiftDown(modifiers & wxMOD_SHIFT);
  event.SetAltDown(modifiers & wxMOD_ALT);
  return event;
}

}  // namespace

bool SendKey(wxWindow& control, int keyCode, int modifiers) {
  // Key codes name the key, which is the upper-case letter; the character is as typed.
  int key = keyCode >= 'a' && keyCode <= 'z' ? keyCode - 'a' + 'A' : keyCode;
  wxKeyEvent hook = KeyEvent(wxEVT_CHAR_HOOK, control, key, modifiers);
  if (control.HandleWindowEvent(hook) && !hook.IsNextEventAllowed()) return true;
  wxKeyEvent down = KeyEvent(wxEVT_KEY_DOWN, control, key, modifiers);
  if (control.HandleWindowEvent(down)) return true;
  wxKeyEvent character = KeyEvent(wxEVT_CHAR, control, keyCode, modifiers);
  return control.HandleWindowEvent(character);
}

}  // namespace mindloft::test
