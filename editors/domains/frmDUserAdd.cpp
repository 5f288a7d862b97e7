#include "editors/domains/frmDUserAdd.h"

#include <wx/button.h>
#include <wx/utils.h>

#include "backend/corvane/Corvane.h"
#include "backend/corvane/IdList.h"
#include "backend/tessaline/GroupedNumber.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "controls/RegisterControls.h"
#include "controls/explorer/ctExplorer.h"
#include "controls/rows/DirectoryList.h"
#include "controls/rows/UserRows.h"
#include "core/ErrorHandling.h"
#include "editors/LongChange.h"
#include "editors/domains/DomainTexts.h"
#include "editors/domains/DomainUsersChange.h"
#include "editors/members/UserList.h"

namespace mindloft {

frmDUserAdd::frmDUserAdd(wxWindow* owner) : FormDialog(WithControls(owner), "frmDUserAdd") {
  ctUser = Find<ctExplorer>("ctUser");
  cmdOK = Find<wxButton>("cmdOK");
  SetButtons("cmdOK", "cmdCancel");
  ctUser->lvSelChange = [this] { SetButtonStatus(); };
  ctUser->lvCountChange = [this] { SetButtonStatus(); };
  ctUser->lvItemDblClick = [this](std::int64_t row) {
    if (row >= 0) CmdOK_Click();
  };
  cmdOK->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { CmdOK_Click(); });
  language_ = GetRefresh()->OnNotifyLanguage([this] { Refresh_NotifyLanguage(); });
}

int frmDUserAdd::OpenWindow(std::shared_ptr<Corvane::KDomain> domain) try {
  domain_ = std::move(domain);
  PrepareDirectoryList(*ctUser);
  LoadInfoOnForm();
  DisplayUsers();
  CentreOnParent();
  ctUser->FocusSearch();
  return ShowModal();
} catch (...) {
  mindloft::Raise("frmDUserAdd", "OpenWindow");
}

void frmDUserAdd::LoadInfoOnForm() try {
  FormDialog::LoadInfoOnForm();
  SetTitle(GetResource().GetFormatString(texts::kAddUsersTo, {ToWx(domain_->Name())}));
} catch (...) {
  mindloft::Raise("frmDUserAdd", "LoadInfoOnForm");
}

void frmDUserAdd::Refresh_NotifyLanguage() try {
  LoadInfoOnForm();
  DisplayUsers();
} catch (...) {
  ShowError("frmDUserAdd", "Refresh_NotifyLanguage");
}

void frmDUserAdd::DisplayUsers() {
  ShowUserList(*ctUser, Candidates());
  SetButtonStatus();
}

std::shared_ptr<ExplorerRows> frmDUserAdd::Candidates() const {
  return std::make_shared<UserRows>(domain_->GetUsersNotAccessible()->View());
}

void frmDUserAdd::SetButtonStatus() {
  cmdOK->Enable(ctUser->SelectedListCount() > 0);
}

void frmDUserAdd::CmdOK_Click() try {
  if (ctUser->SelectedListCount() == 0 || !MayTakeSelected(*ctUser)) return;
  const auto ids = SelectedItems();
  const auto caption = GetResource().GetFormatString(texts::kAddingUsers,
                                                     {GroupedNumber(static_cast<std::int64_t>(ids.size()))});
  if (!RunLongChange(this, caption, kPatience, [&](const Progress& progress) {
        ChangeDomainUsers(*domain_, Corvane::JoinIds(ids), {}, progress);
      }))
    return;
  firstAdded_ = domain_->DUsers()->Item(Corvane::IdText(ids.front()));
  EndModal(wxID_OK);
} catch (...) {
  ShowError("frmDUserAdd", "CmdOK_Click");
  // Somebody may have deleted one of them.
  ctUser->RefreshList();
}

std::vector<ObjectId> frmDUserAdd::SelectedItems() const {
  const wxBusyCursor busy;
  std::vector<ObjectId> ids;
  for (const auto& row : ctUser->SelectedListRows()) ids.push_back(IdOf(row));
  return ids;
}

}  // namespace mindloft
