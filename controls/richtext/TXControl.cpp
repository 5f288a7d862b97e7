#include "controls/richtext/TXControl.h"

namespace mindloft {

const PropertyTable<TXControl>& TXControl::Properties() {
  using C = TXControl;
  static const PropertyTable<C> table{
      InheritedProperty<C>("Text", &C::Text, &C::SetText, wxString()),
      InheritedProperty<C>("Enable", &C::GetEnable, &C::SetEnable, true),
      InheritedProperty<C>("ViewMode", &C::ViewMode, &C::SetViewMode, kNormalView),
      InheritedProperty<C>("GridLines", &C::GridLines, &C::SetGridLines, true),
      InheritedProperty<C>("Locked", &C::Locked, &C::SetLocked, false),
      InheritedProperty<C>("StatueBarVisible", &C::StatueBarVisible, &C::SetStatueBarVisible, true),
      InheritedProperty<C>("RulerBarVisible", &C::RulerBarVisible, &C::SetRulerBarVisible, true),
      KeptProperty("ButtonBarVisible", &C::ButtonBarVisible, &C::SetButtonBarVisible, true),
  };
  return table;
}

TXControl::TXControl(wxWindow* parent, const wxString& name) : TXControl() {
  Create(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0, name);
}

void TXControl::Create(wxWindow* parent, wxWindowID id, const wxPoint& position, const wxSize& size,
                       long style, const wxString& name) {
  CreateParts(parent, id, position, size, style, name);
  ReadProperties({});
}

void TXControl::SetButtonBarVisible(bool visible) {
  SetProperty("ButtonBarVisible", [&] {
    isButtonBarVisible_ = visible;
    UserControl_Resize();
  });
}

void TXControl::SelectAll() {
  Run("SelectAll", [&] {
    Editor().LeaveCells();
    SetSelStart(0);
    SetSellength(static_cast<long>(Text().length()));
  });
}

}  // namespace mindloft
