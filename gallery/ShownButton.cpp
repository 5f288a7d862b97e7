#include "gallery/ShownButton.h"

namespace mindloft {

ShownButton::ShownButton(wxWindow* parent, const wxString& name, const ButtonState& state)
    : MyButton(parent, name), state_(state) {
  state_.mirrored = MyButton::FaceState().mirrored;
}

ButtonState ShownButton::FaceState() const {
  ButtonState shown = state_;
  shown.mirrored = MyButton::FaceState().mirrored;
  return shown;
}

}  // namespace mindloft
