#include "controls/buttons/ButtonColours.h"

#include <wx/settings.h>

#include <cmath>

namespace mindloft {
namespace {

/// The least difference of perceived brightness (0 to 1) between a text and what is behind it.
constexpr double kLeastDifference = 0.3;

/// How dark the darkest edge is beside the shadow, in percent, where the desktop has no colour for it.
constexpr int kDarkerShadow = 55;

}  // namespace

wxColour DarkShadow() {
  const wxColour dark = k3DDarkShadowColour.Resolve();
  const wxColour shadow = kButtonShadowColour.Resolve();
  // The toolkit says black then, which is far too hard among soft colours.
  const bool isMissing = dark == *wxBLACK && AreDistinct(shadow, dark);
  return isMissing ? shadow.ChangeLightness(kDarkerShadow) : dark;
}

bool AreDistinct(const wxColour& one, const wxColour& other) {
  return std::fabs(one.GetLuminance() - other.GetLuminance()) >= kLeastDifference;
}

ButtonColours::ButtonColours(const ButtonLook& look, const ButtonState& state)
    : face(look.backColor.Resolve()), text(look.foreColor.Resolve()) {
  const bool ownColours = look.xpDefaultColors == 0;
  filling = face;
  isFilled = look.xpStyle != 0 && state.enabled && (state.pressed || state.hovering);
  if (isFilled && state.pressed) {
    filling = (ownColours ? look.xpColorPressed : k3DHighlightColour).Resolve();
  } else if (isFilled) {
    filling = (ownColours ? look.xpColorHover : k3DLightColour).Resolve();
  }
  // In themes of high contrast these two are as bright as the text.
  if (isFilled && !ownColours && !AreDistinct(filling, text)) {
    filling = wxSystemSettings::GetColour(wxSYS_COLOUR_HIGHLIGHT);
    text = wxSystemSettings::GetColour(wxSYS_COLOUR_HIGHLIGHTTEXT);
  }
  border = DarkShadow();
  if (!AreDistinct(border, face)) border = text;
  outline = kButtonShadowColour.Resolve();
  if (!state.enabled) {
    text = wxSystemSettings::GetColour(wxSYS_COLOUR_GRAYTEXT);
    const wxColour light = k3DHighlightColour.Resolve();
    if (light.GetLuminance() > face.GetLuminance()) relief = light;
  }
}

}  // namespace mindloft
