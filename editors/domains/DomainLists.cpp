#include "editors/domains/DomainLists.h"

#include <utility>

#include "controls/rows/DirectoryList.h"
#include "controls/rows/DirectoryTexts.h"

namespace mindloft {

void ShowGroupList(ctExplorer& list, std::shared_ptr<ExplorerRows> rows) {
  ShowDirectoryList(list, {{texts::kColumnName, 170}, {texts::kColumnDescription, 260}}, std::move(rows));
}

void ShowDomainList(ctExplorer& list, std::shared_ptr<ExplorerRows> rows) {
  ShowDirectoryList(list,
                    {{texts::kColumnName, 170}, {texts::kColumnDescription, 160}, {texts::kColumnState, 100}},
                    std::move(rows));
}

}  // namespace mindloft
