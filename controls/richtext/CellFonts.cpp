#include "controls/richtext/CellFonts.h"

#include "controls/richtext/Paragraphs.h"
#include "controls/richtext/RichEditor.h"

namespace mindloft {
namespace {

/// For the formats of the paragraphs in cells.
template <typename Action>
void ForCells(wxRichTextBuffer& text, const Action& action) {
  ForParagraphs(text, [&](const wxRichTextParagraphLayoutBox& box, wxRichTextParagraph& paragraph) {
    if (&box != &text) action(paragraph.GetAttributes());
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
