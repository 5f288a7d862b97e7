#pragma once

#include <memory>

#include "controls/explorer/ExplorerRows.h"

namespace mindloft {

class ctExplorer;

/// Lists the rows under the columns name and description in the current language; what was selected or
/// searched before stays so.
void ShowGroupList(ctExplorer& list, std::shared_ptr<ExplorerRows> rows);
/// The same for domains, with their state.
void ShowDomainList(ctExplorer& list, std::shared_ptr<ExplorerRows> rows);

}  // namespace mindloft
