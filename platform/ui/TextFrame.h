#pragma once

class wxColour;
class wxDC;
class wxRect;
class wxWindow;

namespace mindloft::platform {

/// What a text box looks like at the moment.
struct TextFrameState {
  bool enabled = true;
  bool focused = false;
};

/// Draws the frame of the desktop's own text box with the theme of the moment, filled with `background`; an
/// invalid colour fills it as the desktop does.
void DrawTextFrame(wxWindow& window, wxDC& dc, const wxRect& rect, TextFrameState state,
                   const wxColour& background);

}  // namespace mindloft::platform
