#include "controls/richtext/frmRichTable.h"

#include <wx/checkbox.h>
#include <wx/spinctrl.h>

#include "controls/RegisterControls.h"
#include "core/ErrorHandling.h"
#include "platform/Lengths.h"

namespace mindloft {

frmRichTable::frmRichTable(wxWindow* parent) : FormDialog(WithControls(parent), "frmRichTable") {
  spnWidth = Find<wxSpinCtrl>("spnWidth");
  spnPadding = Find<wxSpinCtrlDouble>("spnPadding");
  chkBorder = Find<wxCheckBox>("chkBorder");
  SetButtons("cmdOK", "cmdCancel");
  LoadInfoOnForm();
}

bool frmRichTable::Ask(TableLook& format) try {
  ShowFormat(format);
  if (ShowModal() != wxID_OK) return false;
  format = Chosen();
  return true;
} catch (...) {
  mindloft::Raise("frmRichTable", "Ask");
}

void frmRichTable::ShowFormat(const TableLook& format) {
  spnWidth->SetValue(format.widthPerCent);
  spnPadding->SetValue(platform::MillimetresOf(format.paddingTenths));
  chkBorder->SetValue(format.hasBorder);
}

TableLook frmRichTable::Chosen() const {
  return {spnWidth->GetValue(), platform::TenthsOf(spnPadding->GetValue()), chkBorder->IsChecked()};
}

}  // namespace mindloft
