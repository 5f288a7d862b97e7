#pragma once

class wxSpinButton;

namespace mindloft::platform {

/// The least height in pixels in which the desktop can draw the button; 0 where it draws it in any.
int LeastHeight(const wxSpinButton& button);

}  // namespace mindloft::platform
