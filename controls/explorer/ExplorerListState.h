#pragma once

#include <wx/string.h>

#include <cstdint>

#include "controls/explorer/SelectionKeys.h"

namespace mindloft {

/// How far a list is scrolled: a row that is on the screen, and how many rows it stands below the first that
/// is.
struct ListPlace {
  wxString key;  ///< empty: nothing is on the screen
  std::int64_t below = 0;
};

/// How a user has arranged an explorer's list: what can be carried over to another list of the same rows.
struct ExplorerListState {
  wxString filter;
  int sortColumn = -1;  ///< -1: none
  bool sortDescending = false;
  SelectionKeys selection;
  ListPlace place;
};

}  // namespace mindloft
