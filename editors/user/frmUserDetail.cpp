#include "editors/user/frmUserDetail.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/datetime.h>
#include <wx/stattext.h>

#include <utility>

#include "backend/directory/Privileges.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "controls/explorer/ctExplorer.h"
#include "controls/texts/FramedTextBox.h"
#include "core/ErrorHandling.h"
#include "core/modShare.h"
#include "editors/ResolveConflict.h"

namespace mindloft {
namespace {

constexpr int kNewUser = 59353;
constexpr int kPassword = 61607;
constexpr int kMyPassword = 61608;
constexpr int kTheirPassword = 61609;
constexpr int kNeverLoggedIn = 61614;

}  // namespace

frmUserDetail::frmUserDetail(wxWindow* parent) : PropertySheet(parent, "frmUserDetail", "sstUser") {
  cmdResetPwd = Find<wxButton>("cmdResetPwd");
  chkEnabled = Find<wxCheckBox>("chkEnabled");
  txtLastLogin = Find<wxStaticText>("txtLastLogin");
  ctRole = Find<ctExplorer>("ctRole");
  ctDomain = Find<ctExplorer>("ctDomain");
  ctGroup = Find<ctExplorer>("ctGroup");
  fields_ = std::make_unique<UserFields>(*this);
  password_ =
      std::make_unique<PasswordBoxes>(*this, "frmUserDetail", [this] { return fields_->Name().Text(); });
  fields_->OnChange([this] { RunEvent("txtName_Change", [this] { InfoChanged(); }); });
  password_->changed = [this] { RunEvent("txtPwd_Change", [this] { PasswordChanged(); }); };
  chkEnabled->Bind(wxEVT_CHECKBOX,
                   [this](wxCommandEvent&) { RunEvent("chkEnabled_Click", [this] { InfoChanged(); }); });
  cmdResetPwd->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) {
    RunSaving("cmdResetPwd_Click", [this] { cmdResetPwd_Click(); });
  });
}

int frmUserDetail::OpenWindow(std::shared_ptr<Corvane::User> user) try {
  user_ = std::move(user);
  const auto current = GetConnection()->CurrentUser();
  editingOwnAccount_ = current && !user_->IsNew() && current->Id() == user_->Id();
  Form_Load();
  return Open();
} catch (...) {
  mindloft::Raise("frmUserDetail", "OpenWindow");
}

void frmUserDetail::Form_Load() try {
  InitLists();
  LoadInfoOnForm();
  cmdResetPwd->Disable();
  GetInfo();
  FollowLanguage();
} catch (...) {
  mindloft::Raise("frmUserDetail", "Form_Load");
}

void frmUserDetail::LoadInfoOnForm() try {
  PropertySheet::LoadInfoOnForm();
  if (!user_) return;
  const LoadingGuard::Lock lock(loading_);
  LoadLists();
  ShowLastLogin();
  password_->ShowHints();
} catch (...) {
  mindloft::Raise("frmUserDetail", "LoadInfoOnForm");
}

void frmUserDetail::ShowCaption() {
  if (user_) SetCaption(user_->IsNew(), kNewUser, ToWx(user_->Name()));
}

void frmUserDetail::GetInfo() try {
  const LoadingGuard::Lock lock(loading_);
  fields_->Get(*user_);
  chkEnabled->SetValue(user_->Enabled());
  ShowLastLogin();
} catch (...) {
  mindloft::Raise("frmUserDetail", "GetInfo");
}

void frmUserDetail::ShowLastLogin() {
  const Timestamp last = user_->LastLogin();
  txtLastLogin->SetLabelText(last == 0 ? GetResource().GetString(kNeverLoggedIn)
                                       : wxDateTime(wxLongLong(last)).Format("%Y-%m-%d %H:%M"));
}

void frmUserDetail::FillPage(int page) {
  if (page == RolesPage) {
    DisplayRoles();
  } else if (page == DomainsPage) {
    DisplayDomains();
    DisplayGroups();
  }
}

void frmUserDetail::InfoChanged() {
  changed_ = infoChanged_ = true;
  SetButtonStatus();
}

void frmUserDetail::PasswordChanged() {
  changed_ = passwordChanged_ = true;
  SetButtonStatus();
}

bool frmUserDetail::HasChanges() const {
  return infoChanged_ || roles_.HasChanges() || domains_.HasChanges() || changedGroups_.HasChanges() ||
         !password_->AreEmpty();
}

void frmUserDetail::SetButtonStatus() try {
  const bool mayManage = CheckSysPrivilege(ManageUsers);
  const bool mayEdit = editingOwnAccount_ || mayManage;
  fields_->SetLocked(!mayEdit);
  password_->SetLocked(!mayEdit);
  chkEnabled->Enable(mayManage && !editingOwnAccount_);
  cmdApply->Enable(mayEdit && changed_);
  cmdResetPwd->Enable(mayEdit && changed_ && !user_->IsNew());
  ctRole->SetLocked(!mayManage);
  ctDomain->SetLocked(!mayManage);
  ctGroup->SetLocked(ctDomain->Locked());
  // The login name of an existing user is fixed.
  fields_->Name().SetLocked(!mayEdit || !user_->IsNew());
} catch (...) {
  mindloft::Raise("frmUserDetail", "SetButtonStatus");
}

void frmUserDetail::CmdCancel_Click() {
  if (!user_->IsNew()) user_->CancelEdit(true);
  CloseSheet(wxID_CANCEL);
}

bool frmUserDetail::MergeConflict(const Error& conflict) {
  // What has been typed and not yet put takes part.
  if (infoChanged_) SetUserInfo();
  std::vector<FieldDifference> further;
  auto& resource = GetResource();
  if (settingPassword_)
    further.push_back(
        {resource.GetString(kPassword), resource.GetString(kMyPassword), resource.GetString(kTheirPassword)});
  ConflictChoice choice = ConflictChoice::Mine;
  if (!ResolveConflict(this, *user_, UserFields::All(), conflict, further, &choice)) return false;
  if (settingPassword_ && choice == ConflictChoice::Theirs) {
    password_->Clear(false);
    passwordChanged_ = false;
  }
  settingPassword_ = false;
  GetInfo();
  InitList();
  return true;
}

}  // namespace mindloft
