#pragma once

#include <functional>

namespace mindloft {

/// What a text control tells the form that holds it. Each may be empty. Key codes, shift states and
/// characters are those of controls/ControlKeys.h; `button` is 1 for the left, 2 for the right and 4 for the
/// middle one; places are in twips from the control's upper left corner.
struct TextBoxEvents {
  std::function<void(int& keyCode, int shift)> KeyDown;  ///< a code set to 0 cancels the key
  std::function<void(int& keyCode, int shift)> KeyUp;
  std::function<void(int button, int shift, int x, int y)> MouseDown;
  std::function<void(int button, int shift, int x, int y)> MouseUp;
  std::function<void()> Change;
  std::function<void()> Click;
  std::function<void()> DblClick;
};

}  // namespace mindloft
