#pragma once

#include <functional>

namespace mindloft {

/// What a rich-text control tells the form that holds it. Each may be empty. Key codes, shift states and
/// buttons as in TextBoxEvents; places are in twips from the control's upper left corner.
struct RichTextEvents {
  std::function<void()> Change;
  std::function<void()> PosChange;  ///< caret or selection moved
  std::function<void(int& keyCode, int shift)> KeyUp;
  std::function<void(int button, int shift, int x, int y)> MouseUp;
};

}  // namespace mindloft
