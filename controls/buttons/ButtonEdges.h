#pragma once

#include <wx/dc.h>

namespace mindloft {

// The lines of a button's face, sharp at every resolution: filled rectangles of whole pixels.

void FillRect(wxDC& dc, const wxRect& rect, const wxColour& colour);

/// A frame inside the rectangle: `lit` above and at the left, `shaded` below and at the right.
void DrawFrame(wxDC& dc, const wxRect& rect, int line, const wxColour& lit, const wxColour& shaded);

/// A filled rectangle with rounded corners and an outline.
void DrawRoundedShape(wxDC& dc, const wxRect& rect, int line, int radius, const wxColour& outline,
                      const wxColour& filling);

}  // namespace mindloft
