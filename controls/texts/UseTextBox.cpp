#include "controls/texts/UseTextBox.h"

#include "controls/texts/BoxFont.h"
#include "core/ErrorHandling.h"

namespace mindloft {
namespace {

constexpr std::int16_t kMaxLength = 500;

}  // namespace

const PropertyTable<UseTextBox>& UseTextBox::Properties() {
  using C = UseTextBox;
  // The limit stands before the text that it would cut.
  static const PropertyTable<C> table{
      InheritedProperty<C>("IsNumber", &C::IsNumber, &C::SetIsNumber, false),
      InheritedProperty<C>("Has3D", &C::Has3D, &C::SetHas3D, true),
      InheritedProperty<C>("MaxLength", &C::MaxLength, &C::SetMaxLength, kMaxLength),
      InheritedProperty<C>("Text", &C::Text, &C::SetText, wxString()),
      InheritedProperty<C>("BackColor", &C::BackColor, &C::SetBackColor, kWindowColour),
      KeptProperty("PassWordChar", &C::PassWordChar, &C::SetPassWordChar, wxString()),
      InheritedProperty<C>("Enabled", &C::Enabled, &C::SetEnabled, true),
      KeptProperty("FontUnderline", &C::FontUnderline, &C::SetFontUnderline, false),
      InheritedProperty<C>("Locked", &C::Locked, &C::SetLocked, false),
  };
  return table;
}

UseTextBox::UseTextBox(wxWindow* parent, const wxString& name) : UseTextBox() {
  Create(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0, name);
}

void UseTextBox::Create(wxWindow* parent, wxWindowID id, const wxPoint& position, const wxSize& size,
                        long style, const wxString& name) {
  CreateLayers(parent, id, position, size, style, name, 0);
  MyText->keyPress = [this](int& keyAscii) {
    if (KeyPress) KeyPress(keyAscii);
  };
  ReadProperties({});
}

void UseTextBox::SetPassWordChar(const wxString& character) {
  SetProperty("PassWordChar", [&] {
    passWordChar_ = Holdable(character);
    MyText->SetPasswordCharacter(FirstCharacterOf(passWordChar_));
  });
}

bool UseTextBox::FontUnderline() const {
  return MyText->GetFont().GetUnderlined();
}

void UseTextBox::SetFontUnderline(bool underlined) {
  SetProperty("FontUnderline",
              [&] { ChangeFont(*MyText, [&](wxFont& font) { font.SetUnderlined(underlined); }); });
}

wxString UseTextBox::FontName() const {
  return MyText->GetFont().GetFaceName();
}

void UseTextBox::SetFontName(const wxString& name) try {
  ChangeFont(*MyText, [&](wxFont& font) { font.SetFaceName(name); });
} catch (...) {
  mindloft::Raise("UseTextBox", "FontName");
}

bool UseTextBox::FontBold() const {
  return IsBold(*MyText);
}

void UseTextBox::SetFontBold(bool bold) try { SetBold(*MyText, bold); } catch (...) {
  mindloft::Raise("UseTextBox", "FontBold");
}

bool UseTextBox::FontItalic() const {
  return IsItalic(*MyText);
}

void UseTextBox::SetFontItalic(bool italic) try { SetItalic(*MyText, italic); } catch (...) {
  mindloft::Raise("UseTextBox", "FontItalic");
}

}  // namespace mindloft
