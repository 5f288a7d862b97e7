#include "controls/richtext/OwnAlignment.h"

#include "controls/richtext/Paragraphs.h"

namespace mindloft {

bool IsListed(const wxRichTextAttr& paragraph) {
  return paragraph.HasBulletStyle() && paragraph.GetBulletStyle() != wxTEXT_ATTR_BULLET_STYLE_NONE;
}

wxTextAttrAlignment UsualAlignment(const wxRichTextAttr& basic, bool isListed) {
  return isListed || !basic.HasAlignment() ? wxTEXT_ALIGNMENT_LEFT : basic.GetAlignment();
}

void GiveOwnAlignment(wxRichTextParagraphLayoutBox& text, const wxRichTextAttr& basic) {
  if (UsualAlignment(basic, false) == wxTEXT_ALIGNMENT_LEFT) return;
  ForParagraphs(text, [&](const wxRichTextParagraphLayoutBox&, wxRichTextParagraph& paragraph) {
    wxRichTextAttr& format = paragraph.GetAttributes();
    if (!format.HasAlignment()) format.SetAlignment(UsualAlignment(basic, IsListed(format)));
  });
}

}  // namespace mindloft
