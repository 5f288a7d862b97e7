#pragma once

namespace mindloft::platform {

/// Draws the buttons of trees, the headings of lists and the borders between panes as shapes in the desktop's
/// colours, where the toolkit draws trees and lists itself. For the desktop's own it looks for pictures of
/// the icon theme, and makes hidden controls whose style it asks for: a quarter of the console's start. Call
/// it once, when the toolkit has started.
void DrawPartsAsShapes();

}  // namespace mindloft::platform
