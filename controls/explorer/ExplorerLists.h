#pragma once

#include <wx/string.h>

#include <vector>

#include "controls/explorer/ExplorerRows.h"

namespace mindloft {

class ctExplorer;

// The module `modPublic`: list helpers that the main window shares with the dialogs that hold explorer lists.

/// The fields as one row, joined by the explorer's break character.
ExplorerRow AddListItem(const ctExplorer& explorer, const std::vector<wxString>& fields, const wxString& key,
                        int image);
/// Adds a column; the width is in explorer width units (pixels at 96 dpi).
void AddColumn(ctExplorer& explorer, const wxString& caption, int width);
/// Changes the width of the column of that index; an unknown index changes nothing.
void SetColumnWidth(ctExplorer& explorer, int column, int width);

// Of the module `modShare`.

/// Sets the explorer's break character to U+0001, so that no printable character of a name separates fields.
void SpecifyBreakChar(ctExplorer& explorer);

}  // namespace mindloft
