#pragma once

#include "controls/explorer/ExplorerRows.h"

namespace mindloft {

/// The text of one cell: the field of that number, in one line. A text that some desktops would cut off
/// silently ends with an ellipsis instead.
wxString RowText(const ExplorerRow& row, wxUniChar breakCharacter, int column);

}  // namespace mindloft
