#pragma once

#include "controls/richtext/TableEditing.h"
#include "core/forms/Form.h"

class wxCheckBox;
class wxSpinCtrl;
class wxSpinCtrlDouble;

namespace mindloft {

/// Width, borders and inner space of a table.
class frmRichTable : public FormDialog {
 public:
  explicit frmRichTable(wxWindow* parent);

  /// Shows `format` modally; false when the user cancelled, else it is what was chosen.
  bool Ask(TableLook& format);

 private:
  void ShowFormat(const TableLook& format);
  TableLook Chosen() const;

  wxSpinCtrl* spnWidth = nullptr;
  wxSpinCtrlDouble* spnPadding = nullptr;
  wxCheckBox* chkBorder = nullptr;
};

}  // namespace mindloft
