#include "controls/richtext/TXControl.h"

#include "controls/richtext/RichTextProperties.h"

namespace mindloft {

const PropertyTable<TXControl>& TXControl::Properties() {
  static const PropertyTable<TXControl> table(RichTextProperties<TXControl>(),
                                              {KeptProperty("ButtonBarVisible", &TXControl::ButtonBarVisible,
                                                            &TXControl::SetButtonBarVisible, true)});
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
