#pragma once

#include <memory>
#include <vector>

#include "controls/explorer/ExplorerRows.h"

namespace mindloft {

class ctExplorer;

struct DirectoryColumn {
  int caption;  ///< the number of its text
  int width;    ///< in pixels at 96 dpi
};

/// Prepares an explorer that is to list directory objects: images, break character.
void PrepareDirectoryList(ctExplorer& list);
/// Adds the columns and the hint of the search box in the current language.
void AddDirectoryColumns(ctExplorer& list, const std::vector<DirectoryColumn>& columns);
/// Lists the rows under the columns in the current language. What was selected, sorted or searched in the
/// list before stays so.
void ShowDirectoryList(ctExplorer& list, const std::vector<DirectoryColumn>& columns,
                       std::shared_ptr<ExplorerRows> rows);

}  // namespace mindloft
