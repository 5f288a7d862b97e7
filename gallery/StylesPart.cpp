#include "gallery/StylesPart.h"

#include <memory>
#include <utility>

#include "backend/corvane/Style.h"
#include "controls/styles/ShowStyle.h"
#include "controls/styles/UserPreview.h"

namespace mindloft {

StylesPart::StylesPart(wxWindow* parent, Tell tell) : GalleryPart(parent, "StylesPart", std::move(tell)) {
  using Corvane::StyleFormat;
  const std::pair<const char*, StyleFormat> styles[] = {
      {"prvPlain", {}},
      {"prvSerif", {.fontName = "serif", .fontSize = 12, .italic = true, .colour = "#204060", .sample = ""}},
      {"prvDark", {.bold = true, .colour = "#f0f0e0", .background = "#203040"}},
      {"prvRight", {.underline = true, .alignment = StyleFormat::AlignRight, .rightIndent = "6"}},
      {"prvCentred", {.strikeThrough = true, .alignment = StyleFormat::AlignCentred, .spaceAfter = "1"}},
      {"prvIndents", {.leftIndent = "8", .rightIndent = "8", .firstLineIndent = "-6", .spaceBefore = "1"}},
  };
  for (const auto& [name, format] : styles) {
    const auto style = std::make_shared<Corvane::Style>(nullptr, StyleRecord());
    style->SetFormat(format);
    ShowStyle(*Find<UserPreview>(name), style);
  }
}

}  // namespace mindloft
