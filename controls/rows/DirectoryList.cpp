#include "controls/rows/DirectoryList.h"

#include <utility>

#include "backend/tessaline/Services.h"
#include "controls/explorer/ExplorerLists.h"
#include "controls/explorer/ctExplorer.h"
#include "controls/rows/DirectoryImages.h"
#include "controls/rows/DirectoryTexts.h"

namespace mindloft {

void PrepareDirectoryList(ctExplorer& list) {
  SpecifyBreakChar(list);
  list.SetImages(ExplorerImages());
}

void AddDirectoryColumns(ctExplorer& list, const std::vector<DirectoryColumn>& columns) {
  for (const auto& column : columns) AddColumn(list, GetResource().GetString(column.caption), column.width);
  list.SetSearchHint(GetResource().GetString(texts::kSearchHint));
}

void ShowDirectoryList(ctExplorer& list, const std::vector<DirectoryColumn>& columns,
                       std::shared_ptr<ExplorerRows> rows) {
  const auto state = list.ListState();
  const bool listed = !list.Columns().empty();
  list.ClearList();
  AddDirectoryColumns(list, columns);
  list.SetRows(std::move(rows));
  if (listed) list.RestoreList(state);
}

}  // namespace mindloft
