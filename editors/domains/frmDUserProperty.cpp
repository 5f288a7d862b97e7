#include "editors/domains/frmDUserProperty.h"

#include <wx/button.h>

#include "backend/corvane/Corvane.h"
#include "backend/corvane/IdList.h"
#include "backend/directory/Privileges.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "controls/explorer/ctExplorer.h"
#include "controls/rows/DirectoryList.h"
#include "controls/rows/GroupRows.h"
#include "controls/texts/UseTextBox.h"
#include "core/ErrorHandling.h"
#include "editors/domains/DomainLists.h"
#include "editors/domains/DomainRights.h"
#include "editors/domains/DomainTexts.h"

namespace mindloft {
frmDUserProperty::frmDUserProperty(wxWindow* parent) : PropertySheet(parent, "frmDUserProperty", "") {
  txtName = Find<UseTextBox>("txtName");
  txtFName = Find<UseTextBox>("txtFName");
  ctGroup = Find<ctExplorer>("ctGroup");
  ctGroup->SetCheckBoxes([this](const ExplorerRow& row) { return groups_.IsChecked(IdOf(row)); });
  ctGroup->lvCheckClick = [this](const ExplorerRow& row) {
    RunEvent("ctGroup_lvCheckClick", [&] { ctGroup_lvCheckClick(row); });
  };
  FollowLanguage();
}

bool frmDUserProperty::OpenWindow(std::shared_ptr<Corvane::User> user,
                                  std::shared_ptr<Corvane::DomainContext> domain) try {
  user_ = std::move(user);
  domain_ = std::move(domain);
  mayChange_ = MayChangeDomain(domain_, ManageDomainGroups);
  PrepareDirectoryList(*ctGroup);
  ctGroup->SetLocked(!mayChange_);
  GetInfo();
  LoadInfoOnForm();
  Open();
  return HasSaved();
} catch (...) {
  mindloft::Raise("frmDUserProperty", "OpenWindow");
}

void frmDUserProperty::LoadInfoOnForm() {
  PropertySheet::LoadInfoOnForm();
  DisplayGroups();
}

void frmDUserProperty::ShowCaption() {
  SetTitle(GetResource().GetFormatString(texts::kUserInDomain,
                                         {ToWx(user_->Name()), ToWx(domain_->KDomain()->Name())}));
}

void frmDUserProperty::GetInfo() {
  txtName->SetText(ToWx(user_->Name()));
  txtFName->SetText(ToWx(user_->FullName()));
  groups_.SetSaved(Corvane::IdsFromList(user_->GroupIds()));
}

void frmDUserProperty::DisplayGroups() {
  ShowGroupList(*ctGroup, std::make_shared<GroupRows>(domain_->KDomain()->DGroups()->View()));
}

void frmDUserProperty::SetButtonStatus() {
  cmdApply->Enable(mayChange_ && HasChanges());
}

void frmDUserProperty::ctGroup_lvCheckClick(const ExplorerRow& row) {
  groups_.Toggle(IdOf(row));
  SetButtonStatus();
}

void frmDUserProperty::SaveUserGroup() {
  if (!groups_.HasChanges()) return;
  user_->ChangeGroups(Corvane::JoinIds(groups_.Additions()), Corvane::JoinIds(groups_.Removals()));
  groups_.Commit();
  SetSaved();
}

void frmDUserProperty::cmdApply_Click() {
  SaveUserGroup();
  GetInfo();
  ctGroup->RefreshChecks();
  SetButtonStatus();
  cmdOK->SetFocus();
}

void frmDUserProperty::CmdOK_Click() {
  SaveUserGroup();
  CloseSheet(wxID_OK);
}

// Each change says of one group whether it holds the user, whatever else became of him.
bool frmDUserProperty::MergeConflict(const Error&) {
  const auto current = user_->Current();
  user_->Rebase(current, current);
  GetInfo();
  ctGroup->RefreshChecks();
  return true;
}

}  // namespace mindloft
