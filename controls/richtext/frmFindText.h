#pragma once

#include "controls/richtext/FindText.h"
#include "core/Refresh.h"
#include "core/forms/Form.h"

class wxButton;
class wxCheckBox;
class wxTextCtrl;

namespace mindloft {

class RichTextControl;

/// Searches, and replaces, in a rich-text control, beside which it stays open. Above a modal form it is modal
/// itself: the desktop would not let the user reach it otherwise.
class frmFindText : public FormDialog {
 public:
  /// The control outlives the window, or destroys it.
  frmFindText(RichTextControl& control, bool replaces, const wxString& text, const FindOptions& options);

  /// Shows it; it destroys itself when it is closed.
  void Open();
  void LoadInfoOnForm() override;

 private:
  void cmdFind_Click();
  void cmdReplace_Click();
  void cmdReplaceAll_Click();
  void CloseWindow();
  void SetButtonStatus();
  FindOptions Options() const;
  void Tell(bool found);

  RichTextControl& control_;
  wxTextCtrl* txtFind = nullptr;
  wxTextCtrl* txtReplace = nullptr;
  wxCheckBox* chkCase = nullptr;
  wxCheckBox* chkWord = nullptr;
  wxCheckBox* chkUp = nullptr;
  wxButton* cmdFind = nullptr;
  wxButton* cmdReplace = nullptr;
  wxButton* cmdReplaceAll = nullptr;
  bool replaces_;
  Refresh::Subscription language_;
};

}  // namespace mindloft
