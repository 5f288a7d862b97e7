#include "editors/members/frmSelectUnit.h"

#include <wx/bmpbndl.h>
#include <wx/button.h>
#include <wx/stattext.h>

#include <utility>

#include "backend/corvane/Corvane.h"
#include "controls/RegisterControls.h"
#include "controls/explorer/ctExplorer.h"
#include "controls/rows/DirectoryList.h"
#include "controls/rows/UserRows.h"
#include "core/ErrorHandling.h"
#include "core/forms/Images.h"
#include "editors/members/ListedUsers.h"
#include "editors/members/UserList.h"

namespace mindloft {
namespace {

/// The images of the two states, by their places in the list's images.
enum StateImage : int { PlainUser = 2, MarkedUser = 3 };

std::vector<wxBitmapBundle> StateImages() {
  std::vector<wxBitmapBundle> images;
  for (const char* name : {"group", "role", "user", "user-disabled"}) images.push_back(LoadImage(name));
  return images;
}

}  // namespace

frmSelectUnit::frmSelectUnit(wxWindow* parent, Flag lacks)
    : FormDialog(WithControls(parent), "frmSelectUnit"), lacks_(std::move(lacks)) {
  const bool marksDisabled = !lacks_;
  if (marksDisabled) lacks_ = [](const Corvane::User& user) { return !user.Enabled(); };
  ctNotPrivilege = Find<ctExplorer>("ctNotPrivilege");
  lblMarked = Find<wxStaticText>("lblMarked");
  // It tells what the mark means.
  lblMarked->Show(marksDisabled);
  lblCount = Find<wxStaticText>("lblCount");
  SetButtons("cmdOK", "cmdCancel");
  Find<wxButton>("cmdOK")->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { CmdOK_Click(); });
  Find<wxButton>("cmdCancel")->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { CmdCancel_Click(); });
  const auto count = [this] { ShowUserCounts(*lblCount, *ctNotPrivilege); };
  ctNotPrivilege->lvItemDblClick = [this](std::int64_t) { ctNotPrivilege_lvItemDblClick(); };
  ctNotPrivilege->lvSelChange = count;
  ctNotPrivilege->lvCountChange = count;
}

std::vector<wxString> frmSelectUnit::Display(const Users& users) try {
  users_ = users;
  result_.clear();
  Form_Load();
  ShowModal();
  language_.reset();
  return std::move(result_);
} catch (...) {
  mindloft::Raise("frmSelectUnit", "Display");
}

void frmSelectUnit::Form_Load() {
  LoadInfoOnForm();
  language_ = GetRefresh()->OnNotifyLanguage([this] { Refresh_NotifyLanguage(); });
  PrepareDirectoryList(*ctNotPrivilege);
  ctNotPrivilege->SetImages(StateImages());
  ShowAllUser();
  SelectThoseWithoutMark();
  ctNotPrivilege->FocusList();
  CentreOnParent();
}

void frmSelectUnit::LoadInfoOnForm() try {
  FormDialog::LoadInfoOnForm();
  if (rows_) ShowUserList(*ctNotPrivilege, rows_);
  ShowUserCounts(*lblCount, *ctNotPrivilege);
} catch (...) {
  mindloft::Raise("frmSelectUnit", "LoadInfoOnForm");
}

void frmSelectUnit::ShowAllUser() try {
  std::vector<ExplorerRow> rows;
  rows.reserve(users_.size());
  for (const auto& user : users_) {
    rows.push_back(UserRows::RowOf(user->Stored()));
    rows.back().image = lacks_(*user) ? MarkedUser : PlainUser;
  }
  rows_ = std::make_shared<ListedUsers>(std::move(rows));
  ctNotPrivilege->ClearList();
  ShowUserList(*ctNotPrivilege, rows_);
  ShowUserCounts(*lblCount, *ctNotPrivilege);
} catch (...) {
  mindloft::Raise("frmSelectUnit", "ShowAllUser");
}

void frmSelectUnit::SelectThoseWithoutMark() {
  std::vector<std::int64_t> plain;
  std::int64_t place = 0;
  for (const auto& row : rows_->Page(0, rows_->Count())) {
    if (row.image == PlainUser) plain.push_back(place);
    ++place;
  }
  ctNotPrivilege->SelectListRows(plain);
  ShowUserCounts(*lblCount, *ctNotPrivilege);
}

void frmSelectUnit::CmdOK_Click() try {
  if (!MayTakeSelected(*ctNotPrivilege)) return;
  result_ = ctNotPrivilege->SelectedListKeys();
  EndModal(wxID_OK);
} catch (...) {
  ShowError("frmSelectUnit", "CmdOK_Click");
}

void frmSelectUnit::CmdCancel_Click() try { EndModal(wxID_CANCEL); } catch (...) {
  ShowError("frmSelectUnit", "CmdCancel_Click");
}

void frmSelectUnit::ctNotPrivilege_lvItemDblClick() try { CmdOK_Click(); } catch (...) {
  ShowError("frmSelectUnit", "ctNotPrivilege_lvItemDblClick");
}

void frmSelectUnit::Refresh_NotifyLanguage() try { LoadInfoOnForm(); } catch (...) {
  ShowError("frmSelectUnit", "Refresh_NotifyLanguage");
}

}  // namespace mindloft
