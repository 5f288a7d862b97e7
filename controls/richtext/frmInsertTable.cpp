#include "controls/richtext/frmInsertTable.h"

#include <wx/spinctrl.h>

#include "controls/RegisterControls.h"
#include "core/ErrorHandling.h"

namespace mindloft {

frmInsertTable::frmInsertTable(wxWindow* parent) : FormDialog(WithControls(parent), "frmInsertTable") {
  spnRows = Find<wxSpinCtrl>("spnRows");
  spnColumns = Find<wxSpinCtrl>("spnColumns");
  SetButtons("cmdOK", "cmdCancel");
  LoadInfoOnForm();
}

bool frmInsertTable::Ask(TableSize& format) try {
  ShowFormat(format);
  if (ShowModal() != wxID_OK) return false;
  format = Chosen();
  return true;
} catch (...) {
  mindloft::Raise("frmInsertTable", "Ask");
}

void frmInsertTable::ShowFormat(const TableSize& format) {
  spnRows->SetValue(format.rows);
  spnColumns->SetValue(format.columns);
}

TableSize frmInsertTable::Chosen() const {
  return {spnRows->GetValue(), spnColumns->GetValue()};
}

}  // namespace mindloft
