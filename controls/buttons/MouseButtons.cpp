#include "controls/buttons/MouseButtons.h"

namespace mindloft {

int ButtonOf(const wxMouseEvent& event) {
  if (event.Button(wxMOUSE_BTN_RIGHT)) return MouseButton::Right;
  return event.Button(wxMOUSE_BTN_MIDDLE) ? MouseButton::Middle : MouseButton::Left;
}

int HeldButtons(const wxMouseState& state) {
  return (state.LeftIsDown() ? MouseButton::Left : 0) + (state.RightIsDown() ? MouseButton::Right : 0) +
         (state.MiddleIsDown() ? MouseButton::Middle : 0);
}

}  // namespace mindloft
