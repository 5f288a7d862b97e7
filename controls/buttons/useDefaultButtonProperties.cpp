#include <wx/button.h>
#include <wx/sizer.h>

#include "controls/buttons/useDefaultButton.h"

namespace mindloft {
namespace {

constexpr int kBorder = 2;  // pixels at 96 dpi: the line and what is between it and the button

}  // namespace

const PropertyTable<useDefaultButton>& useDefaultButton::Properties() {
  using C = useDefaultButton;
  static const PropertyTable<C> table{
      KeptProperty("BackColor", &C::BackColor, &C::SetBackColor, kButtonFaceColour),
      KeptProperty("Enabled", &C::Enabled, &C::SetEnabled, true),
      KeptProperty("Font", &C::KeptFont, &C::SetKeptFont, wxFont()),
      KeptProperty("ForeColor", &C::ForeColor, &C::SetForeColor, kButtonTextColour),
      KeptProperty("Caption", &C::Caption, &C::SetCaption, [](const C& button) { return button.GetName(); }),
      KeptProperty("BorderStyle", &C::BorderStyle, &C::SetBorderStyle, 0),
      KeptProperty("Appearance", &C::Appearance, &C::SetAppearance, 1),
      KeptProperty("BackStyle", &C::BackStyle, &C::SetBackStyle, 1),
  };
  return table;
}

void useDefaultButton::SetBackColor(ControlColour colour) {
  backColor_ = colour;
  PropertyChanged();
  ShowColours();
}

void useDefaultButton::SetForeColor(ControlColour colour) {
  foreColor_ = colour;
  PropertyChanged();
  ShowColours();
}

// The default colours leave the button to the desktop's theme.
void useDefaultButton::ShowColours() {
  const wxColour back = backColor_ == kButtonFaceColour ? wxNullColour : backColor_.Resolve();
  command1_->SetBackgroundColour(back);
  command1_->SetForegroundColour(foreColor_ == kButtonTextColour ? wxNullColour : foreColor_.Resolve());
  SetBackgroundColour(backStyle_ == 0 ? wxNullColour : back);
  Refresh();
}

void useDefaultButton::SetEnabled(bool enabled) {
  Enable(enabled);
  PropertyChanged();
}

wxString useDefaultButton::Caption() const {
  return command1_->GetLabel();
}

void useDefaultButton::SetCaption(const wxString& caption) {
  command1_->SetLabel(caption);
  PropertyChanged();
  InvalidateBestSize();
}

void useDefaultButton::SetBorderStyle(std::int16_t style) {
  borderStyle_ = style;
  PropertyChanged();
  ShowBorder();
}

void useDefaultButton::SetAppearance(std::int16_t appearance) {
  appearance_ = appearance;
  PropertyChanged();
  ShowBorder();
}

void useDefaultButton::SetBackStyle(std::int16_t style) {
  backStyle_ = style;
  PropertyChanged();
  ShowColours();
}

void useDefaultButton::ShowBorder() {
  auto* item = GetSizer()->GetItem(command1_);
  item->SetFlag(wxEXPAND | (borderStyle_ == 0 ? 0 : wxALL));
  item->SetBorder(FromDIP(kBorder));
  InvalidateBestSize();
  Layout();
  Refresh();
}

bool useDefaultButton::SetFont(const wxFont& font) {
  if (!wxPanel::SetFont(font)) return false;
  if (command1_) command1_->SetFont(font);
  InvalidateBestSize();
  PropertyChanged();
  return true;
}

wxFont useDefaultButton::KeptFont() const {
  return GetFont() == GetParent()->GetFont() ? wxFont() : GetFont();
}

void useDefaultButton::SetKeptFont(const wxFont& font) {
  SetFont(font.IsOk() ? font : GetParent()->GetFont());
}

}  // namespace mindloft
