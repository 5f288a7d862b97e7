#include "controls/richtext/RulerPicture.h"

#include <wx/dc.h>
#include <wx/settings.h>

#include <cmath>

#include "controls/richtext/Ruler.h"
#include "controls/richtext/RulerModel.h"

namespace mindloft {
namespace {

constexpr int kMarkSize = 5;

wxColour System(wxSystemColour index) {
  return wxSystemSettings::GetColour(index);
}

void DrawScale(wxDC& dc, const Ruler& ruler, const RulerScale& scale) {
  const int height = ruler.GetClientSize().y;
  const int parts = scale.parts;
  const int width = ruler.Model().Width();
  dc.SetTextForeground(System(wxSYS_COLOUR_WINDOWTEXT));
  for (int i = 1; scale.step * i / parts <= width; ++i) {
    const double tenths = scale.step * i / parts;
    const int x = ruler.PixelOf(static_cast<int>(std::lround(tenths)));
    if (i % parts != 0) {
      dc.DrawLine(x, height * 2 / 5, x, height * 3 / 5);
      continue;
    }
    const wxString number = wxString::Format("%d", static_cast<int>(std::lround(tenths / scale.tenthsOfOne)));
    const wxSize size = dc.GetTextExtent(number);
    dc.DrawText(number, x - size.x / 2, (height - size.y) / 2);
  }
}

/// A triangle whose point is at the place, at the top or the bottom of the ruler.
void DrawTriangle(wxDC& dc, const Ruler& ruler, int tenths, bool fromTop) {
  const int size = ruler.FromDIP(kMarkSize);
  const int x = ruler.PixelOf(tenths);
  const int base = fromTop ? 0 : ruler.GetClientSize().y - 1;
  const int point = fromTop ? size + 2 : base - size - 2;
  const wxPoint corners[] = {{x - size, base}, {x + size, base}, {x, point}};
  dc.DrawPolygon(3, corners);
}

void DrawTab(wxDC& dc, const Ruler& ruler, int tenths) {
  const int size = ruler.FromDIP(kMarkSize);
  const int thick = ruler.FromDIP(2);
  const int x = ruler.PixelOf(tenths);
  const int bottom = ruler.GetClientSize().y - 2;
  dc.DrawRectangle(x - thick / 2, bottom - 2 * size, thick, 2 * size);
  dc.DrawRectangle(x - thick / 2, bottom - thick, size + thick, thick);
}

}  // namespace

void DrawRuler(wxDC& dc, const Ruler& ruler, const RulerScale& scale, int withoutTab) {
  const wxSize size = ruler.GetClientSize();
  const RulerModel& model = ruler.Model();
  dc.SetPen(*wxTRANSPARENT_PEN);
  dc.SetBrush(System(wxSYS_COLOUR_BTNFACE));
  dc.DrawRectangle(wxPoint(), size);
  const int edge = ruler.FromDIP(3);
  dc.SetBrush(System(wxSYS_COLOUR_WINDOW));
  dc.DrawRectangle(ruler.PixelOf(0), edge, ruler.PixelOf(model.Width()) - ruler.PixelOf(0),
                   size.y - 2 * edge);
  wxFont font = wxSystemSettings::GetFont(wxSYS_DEFAULT_GUI_FONT);
  constexpr double kSmall = 0.8;
  font.SetFractionalPointSize(font.GetFractionalPointSize() * kSmall);
  dc.SetFont(font);
  dc.SetPen(System(wxSYS_COLOUR_GRAYTEXT));
  DrawScale(dc, ruler, scale);
  dc.SetPen(System(wxSYS_COLOUR_WINDOWTEXT));
  dc.SetBrush(System(wxSYS_COLOUR_BTNFACE));
  DrawTriangle(dc, ruler, model.FirstLine(), true);
  DrawTriangle(dc, ruler, model.Left(), false);
  DrawTriangle(dc, ruler, model.PlaceOf(RulerMark::Right, 0), false);
  dc.SetPen(*wxTRANSPARENT_PEN);
  dc.SetBrush(System(wxSYS_COLOUR_WINDOWTEXT));
  for (int tab = 0; tab < static_cast<int>(model.Tabs().size()); ++tab) {
    if (tab != withoutTab) DrawTab(dc, ruler, model.PlaceOf(RulerMark::Tab, tab));
  }
}

}  // namespace mindloft
