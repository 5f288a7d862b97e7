#include "editors/members/UserList.h"

#include <wx/stattext.h>

#include <utility>

#include "backend/tessaline/GroupedNumber.h"
#include "backend/tessaline/Services.h"
#include "controls/explorer/ExplorerLists.h"
#include "controls/explorer/ctExplorer.h"
#include "controls/rows/DirectoryImages.h"

namespace mindloft {
namespace {

constexpr int kName = 59306;
constexpr int kFullName = 59307;
constexpr int kDescription = 59308;
constexpr int kSearchHint = 61104;
constexpr int kTooManySelected = 61650;
constexpr int kEntriesAndSelected = 61651;

void AddUserColumns(ctExplorer& ctUser) {
  auto& resource = GetResource();
  AddColumn(ctUser, resource.GetString(kName), 130);
  AddColumn(ctUser, resource.GetString(kFullName), 160);
  AddColumn(ctUser, resource.GetString(kDescription), 170);
  ctUser.SetSearchHint(resource.GetString(kSearchHint));
}

}  // namespace

void InitUserList(ctExplorer& ctUser) {
  SpecifyBreakChar(ctUser);
  ctUser.SetImages(ExplorerImages());
}

void ShowUserList(ctExplorer& ctUser, std::shared_ptr<ExplorerRows> rows) {
  ctUser.ClearList();
  AddUserColumns(ctUser);
  ctUser.SetRows(std::move(rows));
}

void ReloadUserList(ctExplorer& ctUser, std::shared_ptr<ExplorerRows> rows) {
  const ExplorerListState state = ctUser.ListState();
  ShowUserList(ctUser, std::move(rows));
  ctUser.RestoreList(state);
}

void ShowUserCounts(wxStaticText& label, const ctExplorer& ctUser) {
  const wxString counts = GetResource().GetFormatString(
      kEntriesAndSelected, {GroupedNumber(ctUser.ListCount()), GroupedNumber(ctUser.SelectedListCount())});
  if (label.GetLabelText() != counts) label.SetLabelText(counts);
}

bool MayTakeSelected(ctExplorer& ctUser) {
  const std::int64_t selected = ctUser.SelectedListCount();
  if (selected <= kMostUsersAtOnce) return true;
  GetMessenger().ShowMessage(kTooManySelected, {GroupedNumber(kMostUsersAtOnce), GroupedNumber(selected)},
                             wxGetTopLevelParent(&ctUser));
  return false;
}

}  // namespace mindloft
