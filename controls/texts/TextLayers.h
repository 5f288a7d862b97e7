#pragma once

#include <wx/gdicmn.h>

class wxWindow;

namespace mindloft {

/// Where the layers of a text control lie: a box for the frame, a picture box inside it, the editing box
/// inside that. Twips; all places are from the upper left corner of the control.
struct TextLayers {
  wxRect background;
  wxRect picture;
  wxRect box;

  /// Lays them out for a control of that size. A layer too large for what surrounds it keeps its former width
  /// or height: there is no smaller one that could be drawn.
  void Place(const wxSize& control, bool isThreeD);
};

/// What the layers take of the control's width and height around the editing box, in twips.
int TextLayersMargin();

/// The distance of the editing box from the control's left edge, in twips.
int TextLayersEdge();

/// A rectangle of twips in pixels of the window's screen, and a size of pixels in twips. Edges are rounded,
/// so that rectangles which touch in twips touch in pixels.
wxRect TwipsToPixels(const wxRect& twips, const wxWindow& window);
wxSize PixelsToTwips(const wxSize& pixels, const wxWindow& window);

}  // namespace mindloft
