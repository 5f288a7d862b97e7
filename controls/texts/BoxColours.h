#pragma once

#include "controls/bag/ControlColour.h"

namespace mindloft {

/// The colour of the text on that ground; invalid: the desktop's own. On a ground that does not follow the
/// desktop's theme the theme's text colour could not be read, so it is black or white there.
wxColour TextColourOn(ControlColour ground, ControlColour text);

}  // namespace mindloft
