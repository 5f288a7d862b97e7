#pragma once

class wxDC;

namespace mindloft {

class Ruler;
struct RulerScale;

/// Draws the ruler with its marks in the desktop's colours; not the tab stop of that index (-1: all).
void DrawRuler(wxDC& dc, const Ruler& ruler, const RulerScale& scale, int withoutTab);

}  // namespace mindloft
