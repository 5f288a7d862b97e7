#include "controls/texts/TextLayers.h"

#include "platform/ui/Metrics.h"

namespace mindloft {
namespace {

constexpr int kEdge = 8;           ///< of a layer from the one around it
constexpr int kBothEdges = 30;     ///< less in width and height than the one around it
constexpr int kBoxEdge = 30;       ///< of the editing box from the picture box
constexpr int kBothBoxEdges = 60;  ///< less in width and height than the picture box

/// Less, but only when there is that much.
void Shrink(int& inner, int outer, int less) {
  if (outer >= less) inner = outer - less;
}

}  // namespace

void TextLayers::Place(const wxSize& control, bool isThreeD) {
  if (isThreeD) {
    background = wxRect(wxPoint(), control);
  } else {
    background.SetPosition({kEdge, kEdge});
    Shrink(background.width, control.x, kBothEdges);
    Shrink(background.height, control.y, kBothEdges);
  }
  picture.SetPosition(background.GetPosition() + wxPoint(kEdge, kEdge));
  Shrink(picture.width, background.width, kBothEdges);
  Shrink(picture.height, background.height, kBothEdges);
  box.SetPosition(picture.GetPosition() + wxPoint(kBoxEdge, kBoxEdge));
  Shrink(box.width, picture.width, kBothBoxEdges);
  Shrink(box.height, picture.height, kBothBoxEdges);
}

int TextLayersMargin() {
  return kBothEdges + kBothBoxEdges;
}

int TextLayersEdge() {
  return kEdge + kBoxEdge;
}

wxRect TwipsToPixels(const wxRect& twips, const wxWindow& window) {
  using platform::TwipsToPixelsX, platform::TwipsToPixelsY;
  const wxPoint from(TwipsToPixelsX(twips.x, &window), TwipsToPixelsY(twips.y, &window));
  const wxPoint to(TwipsToPixelsX(twips.x + twips.width, &window),
                   TwipsToPixelsY(twips.y + twips.height, &window));
  return {from, wxSize(to.x - from.x, to.y - from.y)};
}

wxSize PixelsToTwips(const wxSize& pixels, const wxWindow& window) {
  return {platform::PixelsToTwipsX(pixels.x, &window), platform::PixelsToTwipsY(pixels.y, &window)};
}

}  // namespace mindloft
