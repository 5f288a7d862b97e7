#include "controls/buttons/ButtonEdges.h"

#include <wx/brush.h>
#include <wx/dcmemory.h>
#include <wx/graphics.h>
#include <wx/pen.h>

#include <memory>

namespace mindloft {

void FillRect(wxDC& dc, const wxRect& rect, const wxColour& colour) {
  const wxDCPenChanger pen(dc, *wxTRANSPARENT_PEN);
  const wxDCBrushChanger brush(dc, wxBrush(colour));
  dc.DrawRectangle(rect);
}

void DrawFrame(wxDC& dc, const wxRect& rect, int line, const wxColour& lit, const wxColour& shaded) {
  if (rect.width < 2 * line || rect.height < 2 * line) return;
  const int right = rect.x + rect.width - line;
  const int bottom = rect.y + rect.height - line;
  FillRect(dc, {rect.x, rect.y, rect.width - line, line}, lit);
  FillRect(dc, {rect.x, rect.y, line, rect.height - line}, lit);
  FillRect(dc, {rect.x, bottom, rect.width, line}, shaded);
  FillRect(dc, {right, rect.y, line, rect.height}, shaded);
}

void DrawRoundedShape(wxDC& dc, const wxRect& rect, int line, int radius, const wxColour& outline,
                      const wxColour& filling) {
  if (rect.width <= 2 * line || rect.height <= 2 * line) return;
  auto* memory = dynamic_cast<wxMemoryDC*>(&dc);
  const std::unique_ptr<wxGraphicsContext> context(memory ? wxGraphicsContext::Create(*memory) : nullptr);
  if (!context) {
    DrawFrame(dc, rect, line, outline, outline);
    FillRect(dc, wxRect(rect).Deflate(line), filling);
    return;
  }
  context->SetPen(context->CreatePen(wxGraphicsPenInfo(outline).Width(line)));
  context->SetBrush(wxBrush(filling));
  // The pen draws on both sides of its path.
  const double half = line / 2.0;
  context->DrawRoundedRectangle(rect.x + half, rect.y + half, rect.width - line, rect.height - line, radius);
}

}  // namespace mindloft
