#include "controls/richtext/RichStyles.h"

#include <algorithm>
#include <cmath>

#include "backend/tessaline/Services.h"

namespace mindloft {

const std::vector<RichStyle>& RichStyles() {
  static const std::vector<RichStyle> styles{
      {kNormalStyle, 62060, 1, false, false, 0, 0, 0},   {"Heading 1", 62061, 1.8, true, false, 40, 20, 0},
      {"Heading 2", 62062, 1.4, true, false, 30, 15, 0}, {"Heading 3", 62063, 1.2, true, false, 20, 10, 0},
      {"Quotation", 62064, 1, false, true, 10, 10, 100},
  };
  return styles;
}

wxString StyleText(const wxString& name) {
  for (const RichStyle& style : RichStyles()) {
    if (name == style.name) return GetResource().GetString(style.text);
  }
  return name;
}

wxRichTextAttr StyleFormat(const wxString& name, const wxRichTextAttr& base) {
  const auto& styles = RichStyles();
  auto style =
      std::find_if(styles.begin(), styles.end(), [&](const RichStyle& each) { return name == each.name; });
  if (style == styles.end()) style = styles.begin();
  wxRichTextAttr format;
  format.SetParagraphStyleName(style->name);
  format.SetFontPointSize(static_cast<int>(std::lround(base.GetFontSize() * style->size)));
  format.SetFontWeight(style->bold ? wxFONTWEIGHT_BOLD : wxFONTWEIGHT_NORMAL);
  format.SetFontStyle(style->italic ? wxFONTSTYLE_ITALIC : wxFONTSTYLE_NORMAL);
  format.SetParagraphSpacingBefore(style->before);
  format.SetParagraphSpacingAfter(style->after);
  format.SetLeftIndent(style->indent);
  return format;
}

}  // namespace mindloft
