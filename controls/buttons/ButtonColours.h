#pragma once

#include <wx/colour.h>

#include "controls/buttons/ButtonLook.h"

namespace mindloft {

/// The colours of a button in one state, as the desktop's theme has them now.
struct ButtonColours {
  ButtonColours(const ButtonLook& look, const ButtonState& state);

  wxColour face;     ///< of the whole
  wxColour filling;  ///< of what the flat style fills; the face's where it fills nothing
  wxColour text;     ///< of the caption, grey when disabled
  wxColour relief;   ///< the light under embossed parts; not ok where the theme has none that shows
  wxColour border;   ///< dark, around a focused or default button
  wxColour outline;  ///< of the flat style
  bool isFilled = false;
};

/// The system's 3-D dark shadow, or what takes its place on a desktop without one.
wxColour DarkShadow();

/// Whether one can be told from the other at a glance.
bool AreDistinct(const wxColour& one, const wxColour& other);

}  // namespace mindloft
