// What frmUserDetail stores, and what it says before.

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/utils.h>

#include "backend/corvane/IdList.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "backend/tessaline/login/SecretText.h"
#include "controls/texts/FramedTextBox.h"
#include "core/ErrorHandling.h"
#include "editors/user/EMailRule.h"
#include "editors/user/frmUserDetail.h"

namespace mindloft {
namespace {

constexpr int kNameIsBlank = 51102;
constexpr int kFullNameIsBlank = 51103;
constexpr int kNoEMail = 51330;  ///< %1 the field
constexpr int kEMail = 59414;
constexpr int kPasswordsDiffer = 55101;

}  // namespace

void frmUserDetail::WarnOfField(FramedTextBox& box, int message, const std::vector<wxString>& parameters) {
  SelectPage(DataPage);
  box.SetFocus();
  GetMessenger().ShowMessage(message, parameters, this);
}

void frmUserDetail::WarnOfData() {
  auto& helper = GetStringHelper();
  if (helper.IsBlank(fields_->Name().Text())) WarnOfField(fields_->Name(), kNameIsBlank);
  if (helper.IsBlank(fields_->FullName().Text())) WarnOfField(fields_->FullName(), kFullNameIsBlank);
  const wxString mail = fields_->EMail().Text();
  if (!helper.IsBlank(mail) && !IsEMailAddress(mail))
    WarnOfField(fields_->EMail(), kNoEMail, {GetResource().GetString(kEMail)});
}

void frmUserDetail::cmdApply_Click() {
  // The warnings are meant as such: the back end decides what it refuses.
  WarnOfData();
  if (!SaveUser()) return;
  ShowCaption();
  InitList();
  SetButtonStatus();
  cmdApply->Disable();
  cmdOK->SetFocus();
}

void frmUserDetail::CmdOK_Click() {
  if (cmdApply->IsEnabled()) WarnOfData();
  if (SaveUser()) CloseSheet(wxID_OK);
}

bool frmUserDetail::SaveUser() try {
  if (!changed_) return true;
  settingPassword_ = false;
  if (passwordChanged_) {
    if (!password_->AreEqual()) {
      GetMessenger().ShowMessage(kPasswordsDiffer, {}, this);
      return false;
    }
    // Typed and taken out again: no password is wanted.
    if (cmdResetPwd->IsEnabled() && !password_->AreEmpty()) {
      bool ok = false;
      ResetPassword(ok);
      if (!ok) return false;
    }
  }
  const wxBusyCursor busy;
  if (infoChanged_ || user_->IsNew()) {
    SetUserInfo();
    StoreUser();
  }
  if (groupsChanged_) {
    SaveUserGroup();
    SaveDomains();
  }
  if (rolesChanged_) SaveRoles();
  changed_ = infoChanged_ = groupsChanged_ = rolesChanged_ = passwordChanged_ = false;
  SetSaved();
  return true;
} catch (...) {
  mindloft::Raise("frmUserDetail", "SaveUser");
}

void frmUserDetail::SetUserInfo() try {
  fields_->Set(*user_);
  if (chkEnabled->IsEnabled()) user_->SetEnabled(chkEnabled->GetValue());
} catch (...) {
  mindloft::Raise("frmUserDetail", "SetUserInfo");
}

void frmUserDetail::StoreUser() try {
  if (!user_->IsNew()) {
    user_->Update();
    return;
  }
  // The back end keeps a new user's password for Update, so that there is no user without the wanted one.
  user_->SetPassword(SecretText(password_->Text()).Utf8());
  user_->Update();
  password_->Clear(!password_->AreEmpty());
} catch (...) {
  mindloft::Raise("frmUserDetail", "StoreUser");
}

void frmUserDetail::SaveUserGroup() try {
  // A group takes only users who may use its domain: the domains to be added come first.
  if (!changedGroups_.Additions().empty()) user_->ChangeDomains(Corvane::JoinIds(domains_.Additions()), {});
  user_->ChangeGroups(Corvane::JoinIds(changedGroups_.Additions()),
                      Corvane::JoinIds(changedGroups_.Removals()));
  changedGroups_.Commit();
} catch (...) {
  mindloft::Raise("frmUserDetail", "SaveUserGroup");
}

void frmUserDetail::SaveDomains() try {
  user_->ChangeDomains(Corvane::JoinIds(domains_.Additions()), Corvane::JoinIds(domains_.Removals()));
  domains_.Commit();
} catch (...) {
  mindloft::Raise("frmUserDetail", "SaveDomains");
}

void frmUserDetail::SaveRoles() try {
  user_->ChangeRoles(Corvane::JoinIds(roles_.Additions()), Corvane::JoinIds(roles_.Removals()));
  roles_.Commit();
} catch (...) {
  mindloft::Raise("frmUserDetail", "SaveRoles");
}

void frmUserDetail::ResetPassword(bool& ok) try {
  ok = false;
  if (user_->IsNew()) return;
  if (!password_->AreEqual()) {
    password_->FocusConfirmation();
    GetMessenger().ShowMessage(kPasswordsDiffer, {}, this);
    return;
  }
  // A conflict that comes now is about the password too.
  settingPassword_ = true;
  user_->SetPassword(SecretText(password_->Text()).Utf8());
  settingPassword_ = false;
  password_->Clear(true);
  passwordChanged_ = false;
  SetSaved();
  ok = true;
} catch (...) {
  mindloft::Raise("frmUserDetail", "ResetPassword");
}

void frmUserDetail::cmdResetPwd_Click() {
  if (password_->AreEmpty() && !passwordChanged_) {
    password_->Focus();
    return;
  }
  bool ok = false;
  ResetPassword(ok);
  if (ok) cmdResetPwd->Disable();
}

}  // namespace mindloft
