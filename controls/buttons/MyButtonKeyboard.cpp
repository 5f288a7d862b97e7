#include <wx/anybutton.h>
#include <wx/dialog.h>
#include <wx/textctrl.h>

#include "controls/ControlKeys.h"
#include "controls/buttons/AccessKey.h"
#include "controls/buttons/MyButton.h"
#include "controls/buttons/RaiseEvent.h"

namespace mindloft {
namespace {

constexpr int kEnter = 13;
constexpr int kSpace = 32;

/// Whether Enter means something to the window that has the focus itself.
bool WantsEnter(const wxWindow* window) {
  if (!window) return false;
  if (const auto* box = dynamic_cast<const wxTextCtrl*>(window))
    return box->IsMultiLine() || box->HasFlag(wxTE_PROCESS_ENTER);
  return dynamic_cast<const wxAnyButton*>(window) || window->HasFlag(wxWANTS_CHARS);
}

}  // namespace

void MyButton::OnKeyDown(wxKeyEvent& event) {
  if (HandleAsNavigationKey(event)) return;
  event.Skip();
  if (locked_) return;
  int key = ControlKeyCode(event);
  const bool clicks = (key == kEnter || key == kSpace) && !event.AltDown();
  if (clicks && !keyHeld_) {
    keyHeld_ = true;
    if (key == kSpace) {
      pressed_ = true;
      RedrawNow();
    }
    if (!RaiseClick()) return;
  }
  if (RaiseEvent(*this, "MyButton", "KeyDown", KeyDown, key, ShiftState(event)) && key == 0)
    event.Skip(false);
}

void MyButton::OnChar(wxKeyEvent& event) {
  event.Skip();
  if (locked_) return;
  int character = TypedCharacter(event);
  // The form would click its default button as well.
  if (character == kEnter || character == kSpace) event.Skip(false);
  if (character != 0) RaiseEvent(*this, "MyButton", "KeyPress", KeyPress, character);
}

void MyButton::OnKeyUp(wxKeyEvent& event) {
  event.Skip();
  if (locked_) return;
  int key = ControlKeyCode(event);
  if (key == kEnter || key == kSpace) keyHeld_ = false;
  if (key == kSpace) {
    pressed_ = false;
    RedrawNow();
  }
  RaiseEvent(*this, "MyButton", "KeyUp", KeyUp, key, ShiftState(event));
}

bool MyButton::IsFormsKey(const wxKeyEvent& event) const {
  if (event.GetModifiers() != wxMOD_NONE) return false;
  const int key = event.GetKeyCode();
  if (key == WXK_RETURN || key == WXK_NUMPAD_ENTER) return IsFormDefault() && !WantsEnter(FindFocus());
  const auto* dialog = dynamic_cast<const wxDialog*>(wxGetTopLevelParent(const_cast<MyButton*>(this)));
  return key == WXK_ESCAPE && dialog && dialog->GetEscapeId() == GetId();
}

void MyButton::OnFormKey(wxKeyEvent& event) {
  const bool isAccessKey = IsAccessKey(event, accessKeys_);
  if (locked_ || !IsEnabled() || !IsShownOnScreen() || (!isAccessKey && !IsFormsKey(event))) {
    event.Skip();
    return;
  }
  if (isAccessKey) SetFocus();
  // On Windows this is inside the system's handling of the key, which must not wait for what the click opens.
  CallAfter(&MyButton::UserControl_AccessKeyPress);
}

void MyButton::UserControl_AccessKeyPress() {
  RaiseClick();
}

}  // namespace mindloft
