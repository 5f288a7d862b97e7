#include "controls/richtext/CellFonts.h"

#include "controls/richtext/RichEditor.h"

namespace mindloft {
namespace {

template <typename Object, typename Action>
void ForChildren(const wxRichTextCompositeObject& parent, Action action) {
  for (auto* node = parent.GetChildren().GetFirst(); node; node = node->GetNext())
    if (auto* child = dynamic_cast<Object*>(node->GetData())) action(*child);
}

template <typename Action>
void ForCells(const wxRichTextParagraphLayoutBox& box, const Action& action) {
  ForChildren<wxRichTextParagraph>(box, [&](const wxRichTextParagraph& paragraph) {
    ForChildren<wxRichTextTable>(paragraph, [&](const wxRichTextTable& table) {
      ForChildren<wxRichTextCell>(table, [&](const wxRichTextCell& cell) {
        ForChildren<wxRichTextParagraph>(cell,
                                         [&](wxRichTextParagraph& inner) { action(inner.GetAttributes()); });
        ForCells(cell, action);
      });
    });
  });
}

}  // namespace

void GiveCellsFont(RichEditor& editor) {
  const wxRichTextAttr base = editor.GetBasicStyle();
  ForCells(editor.GetBuffer(), [&](wxRichTextAttr& format) {
    if (!format.HasFontPointSize()) format.SetFontPointSize(base.GetFontSize());
    if (!format.HasFontFaceName()) format.SetFontFaceName(base.GetFontFaceName());
  });
}

void TakeCellsFont(RichEditor& editor) {
  const wxRichTextAttr base = editor.GetBasicStyle();
  ForCells(editor.GetBuffer(), [&](wxRichTextAttr& format) {
    if (format.GetFontSize() == base.GetFontSize()) format.RemoveFlag(wxTEXT_ATTR_FONT_POINT_SIZE);
    if (format.GetFontFaceName() == base.GetFontFaceName()) format.RemoveFlag(wxTEXT_ATTR_FONT_FACE);
  });
}

}  // namespace mindloft
