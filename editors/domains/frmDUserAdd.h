#pragma once

#include <memory>
#include <vector>

#include "backend/directory/Records.h"
#include "core/Refresh.h"
#include "core/forms/Form.h"

class wxButton;

namespace mindloft {

class ExplorerRows;
class ctExplorer;
namespace Corvane {
class KDomain;
class User;
}  // namespace Corvane

/// Gives users access to a knowledge domain: lists all who lack it, with a search box, and adds those who are
/// selected.
class frmDUserAdd : public FormDialog {
 public:
  explicit frmDUserAdd(wxWindow* owner);

  /// Shows the dialog for a stored domain; wxID_OK when users were added.
  int OpenWindow(std::shared_ptr<Corvane::KDomain> domain);
  void LoadInfoOnForm() override;
  /// One of the added users, to tell of the change; nothing before.
  const std::shared_ptr<Corvane::User>& FirstAdded() const { return firstAdded_; }

 private:
  void Refresh_NotifyLanguage();
  void DisplayUsers();
  std::shared_ptr<ExplorerRows> Candidates() const;
  void SetButtonStatus();
  void CmdOK_Click();
  /// The identifiers of the selected users, in list order.
  std::vector<ObjectId> SelectedItems() const;

  std::shared_ptr<Corvane::KDomain> domain_;
  std::shared_ptr<Corvane::User> firstAdded_;
  ctExplorer* ctUser = nullptr;
  wxButton* cmdOK = nullptr;
  Refresh::Subscription language_;
};

}  // namespace mindloft
