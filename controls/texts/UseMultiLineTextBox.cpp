#include "controls/texts/UseMultiLineTextBox.h"

namespace mindloft {
namespace {

constexpr std::int16_t kNoLimit = 0;

}  // namespace

const PropertyTable<UseMultiLineTextBox>& UseMultiLineTextBox::Properties() {
  using C = UseMultiLineTextBox;
  // The limit stands before the text that it would cut.
  static const PropertyTable<C> table{
      InheritedProperty<C>("IsNumber", &C::IsNumber, &C::SetIsNumber, false),
      InheritedProperty<C>("Has3D", &C::Has3D, &C::SetHas3D, true),
      InheritedProperty<C>("MaxLength", &C::MaxLength, &C::SetMaxLength, kNoLimit),
      KeptProperty("VerScrollBars", &C::VerScrollBars, &C::SetVerScrollBars, true),
      InheritedProperty<C>("Text", &C::Text, &C::SetText, wxString()),
      InheritedProperty<C>("BackColor", &C::BackColor, &C::SetBackColor, kWindowColour),
      InheritedProperty<C>("Enabled", &C::Enabled, &C::SetEnabled, true),
      InheritedProperty<C>("Locked", &C::Locked, &C::SetLocked, false),
      KeptProperty("TabStop", &C::TabStop, &C::SetTabStop, true),
  };
  return table;
}

UseMultiLineTextBox::UseMultiLineTextBox(wxWindow* parent, const wxString& name) : UseMultiLineTextBox() {
  Create(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0, name);
}

void UseMultiLineTextBox::Create(wxWindow* parent, wxWindowID id, const wxPoint& position, const wxSize& size,
                                 long style, const wxString& name) {
  CreateLayers(parent, id, position, size, style, name, wxTE_MULTILINE);
  txtNoScrollbar = AddBox("txtNoScrollbar", wxTE_MULTILINE | wxTE_NO_VSCROLL);
  txtNoScrollbar->Hide();
  PlaceLayers();
  ReadProperties({});
}

void UseMultiLineTextBox::SetVerScrollBars(bool scrollBars) {
  SetProperty("VerScrollBars", [&] {
    if (verScrollBars_ == scrollBars) return;
    EditBox& former = ActiveBox();
    verScrollBars_ = scrollBars;
    EditBox& present = ActiveBox();
    present.TakeOver(former);
  });
}

void UseMultiLineTextBox::SetTabStop(bool tabStop) {
  SetProperty("TabStop", [&] {
    tabStop_ = tabStop;
    ForEachBox([&](EditBox& box) { box.SetTabStop(tabStop); });
  });
}

}  // namespace mindloft
