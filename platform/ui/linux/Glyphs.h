#pragma once

namespace mindloft::platform {

/// Lets the desktop's toolkit draw its texts by the options of the windows' surfaces, which all other texts
/// are drawn by, as far as the desktop's settings do not say otherwise. A glyph is kept for each set of
/// options it was drawn by: two sets that look alike would have each one read from its font and drawn twice.
/// For the texts to come; calling it again changes nothing.
void ShareGlyphs();

}  // namespace mindloft::platform
