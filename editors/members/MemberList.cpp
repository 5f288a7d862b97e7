#include "editors/members/MemberList.h"

#include <wx/button.h>
#include <wx/stattext.h>
#include <wx/utils.h>

#include <algorithm>
#include <utility>

#include "backend/corvane/Corvane.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "controls/explorer/ctExplorer.h"
#include "controls/rows/DirectoryImages.h"
#include "controls/rows/DirectoryList.h"
#include "controls/rows/UserRows.h"
#include "core/ErrorHandling.h"
#include "core/forms/Form.h"
#include "editors/LongChange.h"
#include "editors/members/OverlaidUsers.h"
#include "editors/members/UserList.h"
#include "editors/members/frmListUser.h"
#include "editors/members/frmSelectUnit.h"

namespace mindloft {
namespace {

constexpr int kChangingMembers = 61680;  ///< %1 whose

}  // namespace

MemberList::MemberList(const wxWindow& sheet, const char* objectName, std::function<void()> changed)
    : objectName_(objectName),
      ctUser_(*FindControl<ctExplorer>(sheet, "ctUser")),
      lblCount_(*FindControl<wxStaticText>(sheet, "lblCount")),
      cmdAdd_(*FindControl<wxButton>(sheet, "cmdAdd")),
      cmdRemove_(*FindControl<wxButton>(sheet, "cmdRemove")),
      onChange_(std::move(changed)) {
  ctUser_.lvSelChange = [this] { ShowCounts(); };
  ctUser_.lvCountChange = [this] { ShowCounts(); };
  cmdAdd_.Bind(wxEVT_BUTTON,
               [this](wxCommandEvent&) { Guarded(objectName_, "cmdAdd_Click", [this] { cmdAdd_Click(); }); });
  cmdRemove_.Bind(wxEVT_BUTTON, [this](wxCommandEvent&) {
    Guarded(objectName_, "cmdRemove_Click", [this] { cmdRemove_Click(); });
  });
}

MemberList::~MemberList() = default;

void MemberList::SetOwner(ListOwner owner) {
  owner_ = std::move(owner);
}

void MemberList::InitUserList() try { PrepareDirectoryList(ctUser_); } catch (...) {
  Raise(objectName_, "InitUserList");
}

void MemberList::DisplayUsers() try {
  listedOwner_ = IdOf(owner_);
  currentMembers_ = std::make_shared<OverlaidUsers>(std::make_shared<UserRows>(MembersOf(owner_)->View()),
                                                    changedMembers_, ToBeAdded);
  ShowUserList(ctUser_, currentMembers_);
  ShowCounts();
} catch (...) {
  Raise(objectName_, "DisplayUsers");
}

void MemberList::LoadInfo() {
  if (!currentMembers_) return;
  ShowUserList(ctUser_, currentMembers_);
  ShowCounts();
}

void MemberList::Enable(bool enabled) {
  cmdAdd_.Enable(enabled);
  cmdRemove_.Enable(enabled);
}

void MemberList::cmdAdd_Click() {
  std::vector<ExplorerRow> picked;
  frmListUser(wxGetTopLevelParent(&ctUser_)).OpenWindow(owner_, UsersNotAccessible, changedMembers_, picked);
  AskAboutDisabled(picked);
  if (picked.empty()) return;
  const wxBusyCursor busy;
  const wxString first = picked.front().key;
  const auto stored = StoredMembers(picked);
  for (auto& row : picked) {
    const UserItem* item = changedMembers_.Find(row.key);
    if (item && item->Statu() == ToBeRemoved)
      changedMembers_.Drop(row.key);
    else if (!IfUserExist(row.key, stored))
      changedMembers_.Add({std::move(row), ToBeAdded});
  }
  MembersChanged();
  const std::int64_t place = currentMembers_->PositionOf(first);
  if (place >= 0) ctUser_.SelectListRow(place);
}

void MemberList::AskAboutDisabled(std::vector<ExplorerRow>& picked) {
  if (std::ranges::none_of(picked, [](const auto& row) { return row.image == DisabledUserImage; })) return;
  std::vector<ObjectId> ids;
  ids.reserve(picked.size());
  for (const auto& row : picked) ids.push_back(IdOf(row));
  frmSelectUnit form(wxGetTopLevelParent(&ctUser_));
  const auto chosen = form.Display(MembersOf(owner_)->Items(ids));
  const std::unordered_set<wxString> keys(chosen.begin(), chosen.end());
  std::erase_if(picked, [&keys](const auto& row) { return !keys.contains(row.key); });
}

void MemberList::cmdRemove_Click() {
  if (!MayTakeSelected(ctUser_)) return;
  const wxBusyCursor busy;
  std::vector<ExplorerRow> selected = SelectedItems();
  if (selected.empty()) return;
  for (auto& row : selected) {
    const UserItem* item = changedMembers_.Find(row.key);
    if (item && item->Statu() == ToBeAdded)
      changedMembers_.Drop(row.key);
    else
      changedMembers_.Add({std::move(row), ToBeRemoved});
  }
  MembersChanged();
}

void MemberList::MembersChanged() {
  changed_ = true;
  ReloadMembers();
  onChange_();
}

void MemberList::ReloadMembers() {
  currentMembers_->ItemsChanged();
  ctUser_.RefreshList();
}

std::unordered_set<wxString> MemberList::StoredMembers(const std::vector<ExplorerRow>& users) const {
  std::vector<ObjectId> ids;
  ids.reserve(users.size());
  for (const auto& row : users) ids.push_back(IdOf(row));
  std::unordered_set<wxString> stored;
  for (const auto& member : MembersOf(owner_)->Versions(ids)) stored.insert(ToWx(Corvane::IdText(member.id)));
  return stored;
}

bool MemberList::IfUserExist(const wxString& id, const std::unordered_set<wxString>& stored) const try {
  if (const UserItem* item = changedMembers_.Find(id)) return item->Statu() == ToBeAdded;
  return stored.contains(id);
} catch (...) {
  Raise(objectName_, "IfUserExist");
}

std::vector<ExplorerRow> MemberList::SelectedItems() const try {
  return ctUser_.SelectedListRows();
} catch (...) {
  Raise(objectName_, "SelectedItems");
}

bool MemberList::Save() {
  if (!changed_) return true;
  const auto caption = GetResource().GetFormatString(kChangingMembers, {ToWx(NameOf(owner_))});
  const auto additions = ToUtf8(changedMembers_.Ids(ToBeAdded));
  const auto removals = ToUtf8(changedMembers_.Ids(ToBeRemoved));
  if (!RunLongChange(wxGetTopLevelParent(&ctUser_), caption, kPatience,
                     [&](const Progress& progress) { ChangeMembers(owner_, additions, removals, progress); }))
    return false;
  changedMembers_.Clear();
  // A group that was new has other members than the none it had.
  if (IdOf(owner_) == listedOwner_)
    ReloadMembers();
  else
    DisplayUsers();
  GetUtility().Refresh();
  return true;
}

void MemberList::ShowCounts() {
  ShowUserCounts(lblCount_, ctUser_);
}

}  // namespace mindloft
