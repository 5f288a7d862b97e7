#include <wx/app.h>
#include <wx/utils.h>

#include "controls/ControlKeys.h"
#include "controls/buttons/MouseButtons.h"
#include "controls/buttons/MyButton.h"
#include "controls/buttons/RaiseEvent.h"

namespace mindloft {
namespace {

/// How often it is asked whether the pointer is still there, in milliseconds.
constexpr int kHoverInterval = 50;

}  // namespace

bool MyButton::IsInside(const wxPoint& at) const {
  return wxRect(GetClientSize()).Contains(at);
}

void MyButton::OnMotion(wxMouseEvent& event) {
  pointerLeft_ = false;
  if (!locked_) UserControl_MouseMove(HeldButtons(event), ShiftState(event), event.GetPosition());
}

void MyButton::UserControl_MouseMove(int button, int shift, const wxPoint& at) {
  if (IsInside(at) && !hovering_) {
    overTimer_.Start(kHoverInterval);
    hovering_ = true;
    if (!RaiseEvent(*this, "MyButton", "MouseEnter", MouseEnter, static_cast<std::int16_t>(button))) return;
    RedrawNow();
    // Everything that is pending comes before the sound. Running it from in here could end the form under its
    // feet.
    soundOverDue_ = true;
    wxWakeUpIdle();
  }
  RaiseEvent(*this, "MyButton", "MouseMove", MouseMove, button, shift, at.x, at.y);
}

bool MyButton::IsPointerOver() const {
  wxPoint place;
  return !pointerLeft_ && wxFindWindowAtPointer(place) == this;
}

void MyButton::OverTimer_Timer() {
  if (!IsPointerOver()) {
    EndHover();
  } else if (pressed_ && !keyHeld_ && HeldButtons(wxGetMouseState()) == 0) {
    // The release went to a window that the click has opened.
    pressed_ = false;
    RedrawNow();
  }
}

void MyButton::EndHover() {
  overTimer_.Stop();
  hovering_ = false;
  pressed_ = false;
  if (RaiseEvent(*this, "MyButton", "MouseLeave", MouseLeave,
                 static_cast<std::int16_t>(HeldButtons(wxGetMouseState()))))
    RedrawNow();
}

void MyButton::OnButtonDown(wxMouseEvent& event) {
  if (locked_) return;
  SetFocus();
  UserControl_MouseDown(ButtonOf(event), ShiftState(event), event.GetPosition());
}

void MyButton::OnButtonTwice(wxMouseEvent&) {
  if (locked_) return;
  if (!HasCapture()) CaptureMouse();
  UserControl_MouseDown(lastButton_, lastShift_, lastPlace_);
}

void MyButton::UserControl_MouseDown(int button, int shift, const wxPoint& at) {
  lastButton_ = button;
  lastShift_ = shift;
  lastPlace_ = at;
  if (button != MouseButton::Right) {
    pressed_ = true;
    RedrawNow();
    if (IsInside(at)) {
      PlayASound(soundClick_);
      // What the click opens needs the mouse.
      const bool captured = HasCapture();
      if (captured) ReleaseMouse();
      if (!RaiseClick()) return;
      if (captured && !HasCapture() && IsEnabled() && HeldButtons(wxGetMouseState()) != 0) CaptureMouse();
    }
  }
  RaiseEvent(*this, "MyButton", "MouseDown", MouseDown, button, shift, at.x, at.y);
}

void MyButton::OnButtonUp(wxMouseEvent& event) {
  if (HasCapture()) ReleaseMouse();
  if (!locked_) UserControl_MouseUp(ButtonOf(event), ShiftState(event), event.GetPosition());
}

void MyButton::UserControl_MouseUp(int button, int shift, const wxPoint& at) {
  pressed_ = false;
  if (button != MouseButton::Right) RedrawNow();
  RaiseEvent(*this, "MyButton", "MouseUp", MouseUp, button, shift, at.x, at.y);
}

}  // namespace mindloft
