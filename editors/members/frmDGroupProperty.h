#pragma once

#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

#include "editors/PropertySheet.h"
#include "editors/members/MemberList.h"

class wxCheckBox;
class wxStaticText;

namespace mindloft {

namespace Corvane {
class DGroup;
}
class UseTextBox;

/// The property sheet of one group of a knowledge domain: its name, description and privileges, and its
/// members.
class frmDGroupProperty : public PropertySheet {
 public:
  explicit frmDGroupProperty(wxWindow* parent);

  /// Shows the sheet modally for a stored or a new group; HasSaved tells whether anything was stored.
  void OpenWindow(std::shared_ptr<Corvane::DGroup> group);
  void LoadInfoOnForm() override;

 protected:
  void SetButtonStatus() override;
  bool HasChanges() const override { return infoChanged_ || !members_->Pending().Empty(); }
  void cmdApply_Click() override;
  void CmdOK_Click() override;
  void CmdCancel_Click() override;
  void FillPage(int page) override;
  bool MergeConflict(const Error& conflict) override;
  void ShowCaption() override;

 private:
  void BindHandlers();
  void GetInfo();
  void ShowDescription();
  void ShowPrivileges();
  std::uint32_t CheckedPrivileges() const;
  void LockInfo();
  bool MayEdit() const;
  bool NameIsBlank() const;
  void PutInfo();
  /// False: the user has cancelled a long change of the members, which is still pending.
  bool SaveInfo();
  void ClearFlags();
  void InfoChanged();

  std::shared_ptr<Corvane::DGroup> group_;
  std::unique_ptr<MemberList> members_;
  bool infoChanged_ = false;
  bool holdsRight_ = false;  ///< the user may change groups of the group's domain

  UseTextBox* txtName = nullptr;
  UseTextBox* TxtDesc = nullptr;
  wxStaticText* lblStored = nullptr;
  wxStaticText* txtDescription = nullptr;
  std::vector<std::pair<std::uint32_t, wxCheckBox*>> privileges_;
};

}  // namespace mindloft
