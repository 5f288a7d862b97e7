#pragma once

#include <wx/richtext/richtextbuffer.h>

namespace mindloft {

/// Runs `action(cell)` for the cells of a table, row by row.
template <typename Action>
void ForCellsOf(const wxRichTextTable& table, const Action& action) {
  for (int row = 0; row < table.GetRowCount(); ++row) {
    for (int column = 0; column < table.GetColumnCount(); ++column) {
      if (auto* cell = table.GetCell(row, column)) action(*cell);
    }
  }
}

/// Runs `action(box, paragraph)` for all paragraphs of a text and of the cells in it, in the order in which
/// they are read; `box` is the text or the cell.
template <typename Action>
void ForParagraphs(wxRichTextParagraphLayoutBox& box, const Action& action) {
  for (auto* node = box.GetChildren().GetFirst(); node; node = node->GetNext()) {
    auto* paragraph = dynamic_cast<wxRichTextParagraph*>(node->GetData());
    if (!paragraph) continue;
    action(box, *paragraph);
    for (auto* part = paragraph->GetChildren().GetFirst(); part; part = part->GetNext()) {
      auto* table = dynamic_cast<wxRichTextTable*>(part->GetData());
      if (table) ForCellsOf(*table, [&](wxRichTextCell& cell) { ForParagraphs(cell, action); });
    }
  }
}

}  // namespace mindloft
