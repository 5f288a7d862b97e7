#include "controls/richtext/TextBlocks.h"

#include <wx/richtext/richtextctrl.h>

#include "controls/richtext/Paragraphs.h"

namespace mindloft {
namespace {

const wxUniChar kObject(0xFFFC);

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

bool IsTyped(const wxUniChar& character) {
  return character != kObject && !wxIsspace(character);
}

std::vector<TextBlock> TextBlocks(wxRichTextCtrl& editor) {
  std::vector<TextBlock> blocks;
  ForParagraphs(editor.GetBuffer(), [&](auto& box, const wxRichTextParagraph& paragraph) {
    blocks.push_back({&box, paragraph.GetRange().GetStart(), TextOfParagraph(paragraph)});
  });
  return blocks;
}

}  // namespace mindloft
