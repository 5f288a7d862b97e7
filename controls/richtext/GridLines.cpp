#include "controls/richtext/GridLines.h"

#include <wx/dc.h>
#include <wx/richtext/richtextctrl.h>

namespace mindloft {
namespace {

const wxColour kGridColour(190, 200, 215);

bool HasBorder(const wxRichTextObject& object) {
  return object.GetAttributes().GetTextBoxAttr().GetBorder().IsValid();
}

void DrawCells(const wxRichTextTable& table, wxDC& dc);

void DrawTables(const wxRichTextParagraphLayoutBox& box, wxDC& dc, const wxRect& visible) {
  for (auto* node = box.GetChildren().GetFirst(); node; node = node->GetNext()) {
    const wxRichTextObject& paragraph = *node->GetData();
    const int top = paragraph.GetPosition().y;
    if (top > visible.GetBottom()) return;
    if (top + paragraph.GetCachedSize().y < visible.y) continue;
    const auto* parts = dynamic_cast<const wxRichTextParagraph*>(&paragraph);
    if (!parts) continue;
    for (auto* part = parts->GetChildren().GetFirst(); part; part = part->GetNext()) {
      const auto* table = dynamic_cast<const wxRichTextTable*>(part->GetData());
      if (!table) continue;
      DrawCells(*table, dc);
      for (auto* cell = table->GetChildren().GetFirst(); cell; cell = cell->GetNext()) {
        if (const auto* inner = dynamic_cast<const wxRichTextCell*>(cell->GetData()))
          DrawTables(*inner, dc, visible);
      }
    }
  }
}

void DrawCells(const wxRichTextTable& table, wxDC& dc) {
  for (auto* node = table.GetChildren().GetFirst(); node; node = node->GetNext()) {
    const wxRichTextObject& cell = *node->GetData();
    if (HasBorder(cell)) continue;
    dc.DrawRectangle(wxRect(cell.GetPosition(), cell.GetCachedSize()).Inflate(1));
  }
}

}  // namespace

void DrawGridLines(const wxRichTextCtrl& editor, wxDC& dc) {
  const wxPoint start = editor.GetUnscaledPoint(editor.GetLogicalPoint(wxPoint()));
  const wxSize size = editor.GetUnscaledSize(editor.GetClientSize());
  const wxDCPenChanger pen(dc, wxPen(kGridColour, 1, wxPENSTYLE_DOT));
  const wxDCBrushChanger brush(dc, *wxTRANSPARENT_BRUSH);
  DrawTables(editor.GetBuffer(), dc, wxRect(start, size));
}

}  // namespace mindloft
