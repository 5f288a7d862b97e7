#pragma once

#include <wx/dc.h>
#include <wx/window.h>

#include "controls/buttons/ButtonCaption.h"
#include "controls/buttons/ButtonColours.h"
#include "controls/buttons/ButtonLook.h"
#include "controls/buttons/ButtonRects.h"

namespace mindloft {

/// Draws a button in one state, with the font and at the resolution of its window.
class ButtonFace {
 public:
  ButtonFace(wxWindow& window, const ButtonLook& look, const ButtonState& state);

  /// On a DC that runs from left to right, also for a mirrored button.
  void Draw(wxDC& dc, const wxSize& size) const;
  /// The size in which nothing is cut off, in any state.
  wxSize BestSize() const;

 private:
  int Pixels(int dips) const;
  wxSize PictureExtent() const;  ///< in physical pixels
  wxSize CaptionExtent() const;
  wxSize TextExtent(const wxString& line) const;
  ButtonContent Content() const;

  wxRect DrawBorders(wxDC& dc, wxRect rect) const;
  void Draw3DEffect(wxDC& dc, wxRect rect) const;
  void DrawFlatShape(wxDC& dc, const wxRect& rect) const;
  void DrawPicture(wxDC& dc, const wxRect& rect) const;
  void DrawCaption(wxDC& dc, const wxRect& rect) const;
  void DrawLine(wxDC& dc, const wxRect& rect, const wxString& line, int underlined) const;
  void DrawTextAt(wxDC& dc, const wxPoint& at, const wxString& line, const wxRect& underline) const;

  wxWindow& window_;
  const ButtonLook& look_;
  ButtonState state_;
  ButtonCaption caption_;
  ButtonColours colours_;
};

}  // namespace mindloft
