#include "editors/members/frmRoleProperty.h"

#include <wx/button.h>

#include <utility>

#include "backend/corvane/Corvane.h"
#include "backend/directory/Privileges.h"
#include "backend/tessaline/Text.h"
#include "controls/texts/UseMultiLineTextBox.h"
#include "controls/texts/UseTextBox.h"
#include "core/ErrorHandling.h"
#include "core/modShare.h"

namespace mindloft {
namespace {

enum Page : int { General, Members };

}  // namespace

frmRoleProperty::frmRoleProperty(wxWindow* parent) : PropertySheet(parent, "frmRoleProperty", "sstRole") {
  txtName = Find<UseTextBox>("txtName");
  txtPrivilege = Find<UseMultiLineTextBox>("txtPrivilege");
  members_ = std::make_unique<MemberList>(*this, "frmRoleProperty", [this] { SetButtonStatus(); });
  FollowLanguage();
}

void frmRoleProperty::OpenWindow(std::shared_ptr<Corvane::Role> role) try {
  role_ = std::move(role);
  members_->SetOwner(role_);
  LoadInfoOnForm();
  GetInfo();
  members_->InitUserList();
  // Who may not change the role's members can still look at them.
  members_->Enable(CheckSysPrivilege(ManageRoles));
  Open();
} catch (...) {
  mindloft::Raise("frmRoleProperty", "OpenWindow");
}

void frmRoleProperty::LoadInfoOnForm() try {
  PropertySheet::LoadInfoOnForm();
  members_->LoadInfo();
} catch (...) {
  mindloft::Raise("frmRoleProperty", "LoadInfoOnForm");
}

void frmRoleProperty::ShowCaption() {
  if (role_) SetCaption(false, 0, ToWx(role_->Name()));
}

void frmRoleProperty::GetInfo() try {
  const LoadingGuard::Lock lock(loading_);
  txtName->SetText(ToWx(role_->Name()));
  txtPrivilege->SetText(ToWx(role_->PrivilegeText()));
} catch (...) {
  mindloft::Raise("frmRoleProperty", "GetInfo");
}

void frmRoleProperty::FillPage(int page) {
  if (page == Members) members_->DisplayUsers();
}

void frmRoleProperty::SetButtonStatus() try { cmdApply->Enable(members_->Changed()); } catch (...) {
  mindloft::Raise("frmRoleProperty", "SetButtonStatus");
}

bool frmRoleProperty::SaveInfo() try {
  if (members_->Pending().Empty()) return true;
  if (!members_->Save()) return false;
  SetSaved();
  return true;
} catch (...) {
  mindloft::Raise("frmRoleProperty", "SaveInfo");
}

void frmRoleProperty::cmdApply_Click() {
  if (!SaveInfo()) return;
  members_->ClearChanged();
  SetButtonStatus();
  cmdOK->SetFocus();
}

void frmRoleProperty::CmdOK_Click() {
  if (members_->Changed()) cmdApply_Click();
  if (members_->Changed()) return;  // cancelled
  CloseSheet(wxID_OK);
}

// Additions and removals hold whatever others have done to the list meanwhile.
bool frmRoleProperty::MergeConflict(const Error&) {
  role_->Rebase(role_->Current());
  return true;
}

}  // namespace mindloft
