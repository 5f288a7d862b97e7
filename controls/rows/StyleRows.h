#pragma once

#include "controls/rows/RecordRows.h"

namespace mindloft {

/// Styles: name, font in words.
class StyleRows : public RecordRows<StyleRecord> {
 public:
  explicit StyleRows(Corvane::StyleView view);

 protected:
  std::vector<wxString> Fields(const StyleRecord& record) const override;
  int Image(const StyleRecord& record) const override;
};

/// "serif, 11 pt, bold, italic": what a definition says of the font, in the current language.
wxString StyleFontText(const std::string& definition);

}  // namespace mindloft
