#pragma once

namespace mindloft::platform {

/// Draws the buttons of trees, where the toolkit draws trees itself, as shapes in the desktop's text colour.
/// The desktop's own are pictures of its icon theme: looking for them and loading the library that draws them
/// costs a fifth of the console's start. Call it once, when the toolkit has started.
void DrawTreeButtonsAsShapes();

}  // namespace mindloft::platform
