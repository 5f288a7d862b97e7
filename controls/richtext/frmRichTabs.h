#pragma once

#include <vector>

#include "core/forms/Form.h"

class wxListBox;
class wxSpinCtrlDouble;

namespace mindloft {

/// The tab stops of paragraphs, in tenths of a millimetre from the margin.
class frmRichTabs : public FormDialog {
 public:
  explicit frmRichTabs(wxWindow* parent);

  /// Shows the stops modally; false when the user cancelled, else they are what was chosen, in their order.
  bool Ask(std::vector<int>& stops);

 private:
  void ShowStops();
  void cmdAdd_Click();
  void cmdRemove_Click();
  void cmdRemoveAll_Click();

  wxSpinCtrlDouble* spnPlace = nullptr;
  wxListBox* lstStops = nullptr;
  std::vector<int> stops_;
};

}  // namespace mindloft
