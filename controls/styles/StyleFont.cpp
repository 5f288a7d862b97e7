#include "controls/styles/StyleFont.h"

#include <wx/font.h>
#include <wx/fontenum.h>
#include <wx/settings.h>

#include "backend/corvane/StyleFormat.h"
#include "backend/tessaline/Text.h"
#include "controls/FontFaces.h"

namespace mindloft {
namespace {

struct Kind {
  const char* name;
  wxFontFamily family;
};

constexpr Kind kKinds[] = {
    {"sans-serif", wxFONTFAMILY_SWISS}, {"serif", wxFONTFAMILY_ROMAN}, {"monospace", wxFONTFAMILY_TELETYPE}};

constexpr int kAnySize = 10;

}  // namespace

std::optional<wxString> FaceOfStyleFont(const wxString& fontName) {
  if (fontName.empty()) return wxSystemSettings::GetFont(wxSYS_DEFAULT_GUI_FONT).GetFaceName();
  for (const auto& [name, family] : kKinds) {
    if (fontName == name) return wxFont(wxFontInfo(kAnySize).Family(family)).GetFaceName();
  }
  if (!wxFontEnumerator::IsValidFacename(fontName)) return std::nullopt;
  return fontName;
}

std::optional<wxRichTextAttr> LettersOfStyle(const Corvane::StyleFormat& format) {
  const auto face = FaceOfStyleFont(ToWx(format.fontName));
  if (!face) return std::nullopt;
  wxRichTextAttr look;
  look.SetFontFaceName(*face);
  look.SetFontPointSize(format.fontSize);
  look.SetFontWeight(format.bold ? wxFONTWEIGHT_BOLD : wxFONTWEIGHT_NORMAL);
  look.SetFontStyle(format.italic ? wxFONTSTYLE_ITALIC : wxFONTSTYLE_NORMAL);
  look.SetFontUnderlined(format.underline);
  look.SetTextEffectFlags(wxTEXT_ATTR_EFFECT_STRIKETHROUGH);
  look.SetTextEffects(format.strikeThrough ? wxTEXT_ATTR_EFFECT_STRIKETHROUGH : wxTEXT_ATTR_EFFECT_NONE);
  return look;
}

std::vector<wxString> StyleFonts() {
  std::vector<wxString> names;
  for (const auto& kind : kKinds) names.emplace_back(kind.name);
  for (const auto& face : InstalledFaces()) names.push_back(face);
  return names;
}

}  // namespace mindloft
