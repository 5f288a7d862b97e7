#pragma once

#include "controls/buttons/MyButton.h"

namespace mindloft {

/// A MyButton that always looks as it is told, wherever the pointer and the focus are.
class ShownButton : public MyButton {
 public:
  ShownButton(wxWindow* parent, const wxString& name, const ButtonState& state);

 protected:
  ButtonState FaceState() const override;

 private:
  ButtonState state_;
};

}  // namespace mindloft
