#pragma once

#include <memory>

#include "editors/PendingChecks.h"
#include "editors/PropertySheet.h"

namespace mindloft {

struct ExplorerRow;
class UseTextBox;
class ctExplorer;
namespace Corvane {
class DomainContext;
class User;
}  // namespace Corvane

/// One user of a knowledge domain: who it is, and in which of the domain's groups.
class frmDUserProperty : public PropertySheet {
 public:
  explicit frmDUserProperty(wxWindow* parent);

  /// Shows the sheet for a user who has access to the domain; whether a membership was stored.
  bool OpenWindow(std::shared_ptr<Corvane::User> user, std::shared_ptr<Corvane::DomainContext> domain);

 protected:
  void SetButtonStatus() override;
  bool HasChanges() const override { return groups_.HasChanges(); }
  void cmdApply_Click() override;
  void CmdOK_Click() override;
  bool MergeConflict(const Error& conflict) override;
  void ShowCaption() override;
  void LoadInfoOnForm() override;

 private:
  void GetInfo();
  void DisplayGroups();
  void ctGroup_lvCheckClick(const ExplorerRow& row);
  void SaveUserGroup();

  std::shared_ptr<Corvane::User> user_;
  std::shared_ptr<Corvane::DomainContext> domain_;
  PendingChecks groups_;
  bool mayChange_ = false;
  UseTextBox* txtName = nullptr;
  UseTextBox* txtFName = nullptr;
  ctExplorer* ctGroup = nullptr;
};

}  // namespace mindloft
