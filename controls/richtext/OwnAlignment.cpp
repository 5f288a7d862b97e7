#include "controls/richtext/OwnAlignment.h"

#include <algorithm>

#include "controls/richtext/Paragraphs.h"
#include "controls/richtext/TextBlocks.h"
#include "platform/ui/TextPlaces.h"

namespace mindloft {
namespace {

/// Whether something stands there, and none of it runs from right to left.
bool IsLeftToRight(const wxString& text) {
  return !platform::HasRightToLeftLetters(text) &&
         std::any_of(text.begin(), text.end(), [](const wxUniChar& sign) { return IsTyped(sign); });
}

wxString WholeText(wxRichTextParagraphLayoutBox& text) {
  wxString whole;
  ForParagraphs(text, [&](const wxRichTextParagraphLayoutBox&, const wxRichTextParagraph& paragraph) {
    whole += TextOfParagraph(paragraph);
  });
  return whole;
}

}  // namespace

bool IsListed(const wxRichTextAttr& paragraph) {
  return paragraph.HasBulletStyle() && paragraph.GetBulletStyle() != wxTEXT_ATTR_BULLET_STYLE_NONE;
}

wxTextAttrAlignment UsualAlignment(const wxRichTextAttr& basic, bool isListed) {
  return isListed || !basic.HasAlignment() ? wxTEXT_ALIGNMENT_LEFT : basic.GetAlignment();
}

void GiveOwnAlignment(wxRichTextParagraphLayoutBox& text, const wxRichTextAttr& basic) {
  if (UsualAlignment(basic, false) == wxTEXT_ALIGNMENT_LEFT || IsLeftToRight(WholeText(text))) return;
  ForParagraphs(text, [&](const wxRichTextParagraphLayoutBox&, wxRichTextParagraph& paragraph) {
    wxRichTextAttr& format = paragraph.GetAttributes();
    if (!format.HasAlignment() && !IsLeftToRight(TextOfParagraph(paragraph)))
      format.SetAlignment(UsualAlignment(basic, IsListed(format)));
  });
}

}  // namespace mindloft
