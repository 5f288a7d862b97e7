#pragma once

#include <wx/string.h>

#include "controls/explorer/SelectionKeys.h"

namespace mindloft {

/// How a user has arranged an explorer's list: what can be carried over to another list of the same rows.
struct ExplorerListState {
  wxString filter;
  int sortColumn = -1;  ///< -1: none
  bool sortDescending = false;
  SelectionKeys selection;
};

}  // namespace mindloft
