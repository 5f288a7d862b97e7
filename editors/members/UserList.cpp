#include "editors/members/UserList.h"

#include <wx/stattext.h>

#include <utility>

#include "backend/tessaline/GroupedNumber.h"
#include "backend/tessaline/Services.h"
#include "controls/explorer/ctExplorer.h"
#include "controls/rows/DirectoryList.h"
#include "controls/rows/DirectoryTexts.h"

namespace mindloft {
namespace {

constexpr int kTooManySelected = 61650;
constexpr int kEntriesAndSelected = 61651;

}  // namespace

void ShowUserList(ctExplorer& ctUser, std::shared_ptr<ExplorerRows> rows) {
  ShowDirectoryList(
      ctUser, {{texts::kColumnName, 130}, {texts::kColumnFullName, 160}, {texts::kColumnDescription, 170}},
      std::move(rows));
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
