#include "controls/texts/BoxColours.h"

namespace mindloft {

wxColour TextColourOn(ControlColour ground, ControlColour text) {
  if (text != kWindowTextColour) return text.Resolve();
  if (ground.IsSystem()) return {};
  return ground.Resolve().GetLuminance() > 0.5 ? *wxBLACK : *wxWHITE;
}

}  // namespace mindloft
