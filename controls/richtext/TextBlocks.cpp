#include "controls/richtext/TextBlocks.h"

#include <wx/richtext/richtextctrl.h>

namespace mindloft {
namespace {

const wxUniChar kObject(0xFFFC);

void AddBlocks(wxRichTextParagraphLayoutBox& box, std::vector<TextBlock>& blocks) {
  for (auto* node = box.GetChildren().GetFirst(); node; node = node->GetNext()) {
    auto* paragraph = dynamic_cast<wxRichTextParagraph*>(node->GetData());
    if (!paragraph) continue;
    blocks.push_back({&box, paragraph->GetRange().GetStart(), TextOfParagraph(*paragraph)});
    for (auto* part = paragraph->GetChildren().GetFirst(); part; part = part->GetNext()) {
      auto* table = dynamic_cast<wxRichTextTable*>(part->GetData());
      if (!table) continue;
      for (int row = 0; row < table->GetRowCount(); ++row) {
        for (int column = 0; column < table->GetColumnCount(); ++column) {
          if (auto* cell = table->GetCell(row, column)) AddBlocks(*cell, blocks);
        }
      }
    }
  }
}

}  // namespace

wxString TextOfParagraph(const wxRichTextParagraph& paragraph) {
  wxString text;
  for (auto* node = paragraph.GetChildren().GetFirst(); node; node = node->GetNext()) {
    const auto* run = dynamic_cast<const wxRichTextPlainText*>(node->GetData());
    if (run)
      text += run->GetText();
    else
      text += kObject;
  }
  return text;
}

std::vector<TextBlock> TextBlocks(wxRichTextCtrl& editor) {
  std::vector<TextBlock> blocks;
  AddBlocks(editor.GetBuffer(), blocks);
  return blocks;
}

}  // namespace mindloft
