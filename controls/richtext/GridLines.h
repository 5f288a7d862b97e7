#pragma once

class wxDC;
class wxRichTextCtrl;

namespace mindloft {

/// Draws the edges of the visible cells that have no border of their own, in the places of the text.
void DrawGridLines(const wxRichTextCtrl& editor, wxDC& dc);

}  // namespace mindloft
