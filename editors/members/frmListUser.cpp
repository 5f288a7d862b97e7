#include "editors/members/frmListUser.h"

#include <wx/button.h>
#include <wx/stattext.h>
#include <wx/utils.h>

#include <string>
#include <utility>

#include "backend/corvane/Corvane.h"
#include "backend/errors/Error.h"
#include "backend/tessaline/Services.h"
#include "controls/RegisterControls.h"
#include "controls/explorer/ctExplorer.h"
#include "controls/rows/DirectoryList.h"
#include "controls/rows/UserRows.h"
#include "core/ErrorHandling.h"
#include "editors/members/ListedUsers.h"
#include "editors/members/MemberItems.h"
#include "editors/members/OverlaidUsers.h"
#include "editors/members/UserList.h"

namespace mindloft {
namespace {

constexpr int kTitle = 59358;

}  // namespace

frmListUser::frmListUser(wxWindow* parent) : FormDialog(WithControls(parent), "frmListUser") {
  ctUser = Find<ctExplorer>("ctUser");
  lblCount = Find<wxStaticText>("lblCount");
  SetButtons("cmdOK", "cmdCancel");
  Find<wxButton>("cmdOK")->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { CmdOK_Click(); });
  Find<wxButton>("cmdCancel")->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { CmdCancel_Click(); });
  ctUser->lvItemDblClick = [this](std::int64_t) { ctUser_lvItemDblClick(); };
  ctUser->lvSelChange = [this] { ShowCounts(); };
  ctUser->lvCountChange = [this] { ShowCounts(); };
}

void frmListUser::OpenWindow(const ListOwner& owner, int kind, const MemberItems& members,
                             std::vector<ExplorerRow>& result) try {
  owner_ = owner;
  kind_ = kind;
  members_ = &members;
  result_.clear();
  Form_Load();
  ShowModal();
  language_.reset();
  result = std::move(result_);
} catch (...) {
  mindloft::Raise("frmListUser", "OpenWindow");
}

void frmListUser::Form_Load() {
  LoadInfoOnForm();
  language_ = GetRefresh()->OnNotifyLanguage([this] { Refresh_NotifyLanguage(); });
  PrepareDirectoryList(*ctUser);
  DisplayUsers();
  if (ctUser->ListCount() > 0 && ctUser->SelectedListCount() == 0) ctUser->SelectListRow(0);
  ShowCounts();
  ctUser->FocusList();
  CentreOnParent();
}

void frmListUser::LoadInfoOnForm() try {
  FormDialog::LoadInfoOnForm();
  SetTitle(GetResource().GetString(kTitle));
  if (rows_) ShowUserList(*ctUser, rows_);
  ShowCounts();
} catch (...) {
  mindloft::Raise("frmListUser", "LoadInfoOnForm");
}

void frmListUser::DisplayUsers() try {
  const wxBusyCursor busy;
  switch (kind_) {
    case CallersItems:
      rows_ = std::make_shared<ListedUsers>(members_->Rows(0), ListedUsers::Start::Sorted);
      break;
    case CallersItemsByIndex:
      rows_ = std::make_shared<ListedUsers>(members_->Rows(0), ListedUsers::Start::AsGiven);
      break;
    case UsersNotAccessible:
      rows_ = std::make_shared<OverlaidUsers>(
          std::make_shared<UserRows>(GetUsersNotAccessible(owner_)->View()), *members_, ToBeRemoved);
      break;
    default:
      throw Error(ErrorNumber::TypeMismatch, "no list of users has the kind " + std::to_string(kind_));
  }
  ctUser->ClearList();
  ShowUserList(*ctUser, rows_);
} catch (...) {
  mindloft::Raise("frmListUser", "DisplayUsers");
}

void frmListUser::SelectedItems() try {
  const wxBusyCursor busy;
  result_ = ctUser->SelectedListRows();
} catch (...) {
  mindloft::Raise("frmListUser", "SelectedItems");
}

void frmListUser::ShowCounts() {
  ShowUserCounts(*lblCount, *ctUser);
}

void frmListUser::CmdOK_Click() try {
  if (!MayTakeSelected(*ctUser)) return;
  SelectedItems();
  EndModal(wxID_OK);
} catch (...) {
  ShowError("frmListUser", "CmdOK_Click");
}

void frmListUser::CmdCancel_Click() try { EndModal(wxID_CANCEL); } catch (...) {
  ShowError("frmListUser", "CmdCancel_Click");
}

// Only rows are told of, so that a double click on empty space does nothing.
void frmListUser::ctUser_lvItemDblClick() try { CmdOK_Click(); } catch (...) {
  ShowError("frmListUser", "ctUser_lvItemDblClick");
}

void frmListUser::Refresh_NotifyLanguage() try { LoadInfoOnForm(); } catch (...) {
  ShowError("frmListUser", "Refresh_NotifyLanguage");
}

}  // namespace mindloft
