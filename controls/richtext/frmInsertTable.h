#pragma once

#include "core/forms/Form.h"

class wxSpinCtrl;

namespace mindloft {

struct TableSize {
  int rows = 3;
  int columns = 3;
};

/// Rows and columns of a new table.
class frmInsertTable : public FormDialog {
 public:
  explicit frmInsertTable(wxWindow* parent);

  /// Shows `format` modally; false when the user cancelled, else it is what was chosen.
  bool Ask(TableSize& format);

 private:
  void ShowFormat(const TableSize& format);
  TableSize Chosen() const;

  wxSpinCtrl* spnRows = nullptr;
  wxSpinCtrl* spnColumns = nullptr;
};

}  // namespace mindloft
