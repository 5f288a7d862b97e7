#include "controls/rows/StyleRows.h"

#include "backend/corvane/StyleXml.h"
#include "backend/tessaline/Services.h"
#include "controls/rows/DirectoryImages.h"
#include "controls/rows/DirectoryTexts.h"

namespace mindloft {

StyleRows::StyleRows(Corvane::StyleView view) : RecordRows(std::move(view), {Order::Name}) {}

std::vector<wxString> StyleRows::Fields(const StyleRecord& record) const {
  return {ToWx(record.name), StyleFontText(record.definition)};
}

int StyleRows::Image(const StyleRecord&) const {
  return StyleImage;
}

wxString StyleFontText(const std::string& definition) {
  const auto& resource = GetResource();
  const auto format = Corvane::ReadStyle(definition).format;
  const wxString font =
      format.fontName.empty() ? resource.GetString(texts::kWindowsFont) : ToWx(format.fontName);
  wxString text =
      resource.GetFormatString(texts::kFontAndSize, {font, wxString::Format("%d", format.fontSize)});
  const auto add = [&](bool is, int number) {
    if (is) text = GetStringHelper().JoinStrings({text, resource.GetString(number)}, ", ");
  };
  add(format.bold, texts::kFontBold);
  add(format.italic, texts::kFontItalic);
  add(format.underline, texts::kFontUnderlined);
  add(format.strikeThrough, texts::kFontStruckThrough);
  return text;
}

}  // namespace mindloft
