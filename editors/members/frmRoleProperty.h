#pragma once

#include <memory>

#include "editors/PropertySheet.h"
#include "editors/members/MemberList.h"

namespace mindloft {

namespace Corvane {
class Role;
}
class UseMultiLineTextBox;
class UseTextBox;

/// The property sheet of a role: its name and privileges to read, its members to change.
class frmRoleProperty : public PropertySheet {
 public:
  explicit frmRoleProperty(wxWindow* parent);

  /// Shows the sheet modally; HasSaved tells whether anything was stored.
  void OpenWindow(std::shared_ptr<Corvane::Role> role);
  void LoadInfoOnForm() override;

 protected:
  void SetButtonStatus() override;
  bool HasChanges() const override { return !members_->Pending().Empty(); }
  void cmdApply_Click() override;
  void CmdOK_Click() override;
  void FillPage(int page) override;
  bool MergeConflict(const Error& conflict) override;
  void ShowCaption() override;

 private:
  void GetInfo();
  /// False: the user has cancelled a long change, which is still pending.
  bool SaveInfo();

  std::shared_ptr<Corvane::Role> role_;
  std::unique_ptr<MemberList> members_;

  UseTextBox* txtName = nullptr;
  UseMultiLineTextBox* txtPrivilege = nullptr;
};

}  // namespace mindloft
