#pragma once

#include <memory>

#include "controls/explorer/ExplorerRows.h"

namespace mindloft {

class ctExplorer;

/// Prepares an explorer that is to list groups or domains: images, break character.
void PrepareDomainList(ctExplorer& list);
/// Lists the rows under the columns name and description in the current language; what was selected or
/// searched before stays so.
void ShowGroupList(ctExplorer& list, std::shared_ptr<ExplorerRows> rows);
/// The same for domains, with their state.
void ShowDomainList(ctExplorer& list, std::shared_ptr<ExplorerRows> rows);

}  // namespace mindloft
