#include "editors/domains/DomainLists.h"

#include <utility>
#include <vector>

#include "backend/tessaline/Services.h"
#include "controls/explorer/ExplorerLists.h"
#include "controls/explorer/ctExplorer.h"
#include "controls/rows/DirectoryImages.h"

namespace mindloft {
namespace {

constexpr int kName = 59306;
constexpr int kDescription = 59308;
constexpr int kState = 59309;
constexpr int kSearchHint = 61104;

void Show(ctExplorer& list, const std::vector<ExplorerColumn>& columns, std::shared_ptr<ExplorerRows> rows) {
  const auto state = list.ListState();
  const bool listed = !list.Columns().empty();
  list.ClearList();
  for (const auto& column : columns) AddColumn(list, column.caption, column.width);
  list.SetSearchHint(GetResource().GetString(kSearchHint));
  list.SetRows(std::move(rows));
  if (listed) list.RestoreList(state);
}

}  // namespace

void PrepareDomainList(ctExplorer& list) {
  SpecifyBreakChar(list);
  list.SetImages(ExplorerImages());
}

void ShowGroupList(ctExplorer& list, std::shared_ptr<ExplorerRows> rows) {
  auto& resource = GetResource();
  Show(list, {{resource.GetString(kName), 170}, {resource.GetString(kDescription), 260}}, std::move(rows));
}

void ShowDomainList(ctExplorer& list, std::shared_ptr<ExplorerRows> rows) {
  auto& resource = GetResource();
  Show(list,
       {{resource.GetString(kName), 170},
        {resource.GetString(kDescription), 160},
        {resource.GetString(kState), 100}},
       std::move(rows));
}

}  // namespace mindloft
