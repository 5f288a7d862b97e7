#pragma once

#include <memory>

#include "core/Refresh.h"
#include "core/forms/Form.h"

class wxButton;

namespace mindloft {

class UrlRows;
class UseTextBox;
class ctExplorer;

/// Keeps the list of web server URLs in the registry. Every change is written at once; there is no cancel.
///
/// A row that the user selects is copied into the text box, to be changed there.
class frmURL : public FormDialog {
 public:
  /// Whether the URL that the user has selected or entered last becomes the connection's when the form
  /// closes.
  enum class Purpose { KeepList, ChooseUrl };

  frmURL(wxWindow* parent, Purpose purpose);
  ~frmURL() override;
  void LoadInfoOnForm() override;

 private:
  void Form_Load();
  void BindHandlers();
  void cmdAdd_Click();
  void CmdNew_Click();
  void CmdDelete_Click();
  void cmdclose_Click();
  void ctURL_SelChange();
  bool ctURL_KeyDown(int key, int modifiers);
  void Refresh_NotifyLanguage();

  void ShowRows();
  void SetEditMode(bool editMode);
  /// Selects a row for the user: nothing is copied into the text box.
  void SelectRow(std::int64_t row);
  /// The key of the selected row; empty when none or several are selected.
  wxString SelectedKey() const;

  Purpose purpose_;
  std::shared_ptr<UrlRows> rows_;
  bool EditMode = false;  ///< the text box holds an entry of the list
  wxString EditKey;       ///< that entry's
  wxString chosenKey_;    ///< of the URL that the user has selected or entered last
  Refresh::Subscription language_;

  UseTextBox* txtUrl = nullptr;
  ctExplorer* ctURL = nullptr;
  wxButton* cmdAdd = nullptr;
};

}  // namespace mindloft
