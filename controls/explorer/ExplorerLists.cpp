#include "controls/explorer/ExplorerLists.h"

#include "controls/explorer/ctExplorer.h"
#include "core/ErrorHandling.h"

namespace mindloft {

ExplorerRow AddListItem(const ctExplorer& explorer, const std::vector<wxString>& fields, const wxString& key,
                        int image) try {
  ExplorerRow row{wxString(), key, image};
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (i > 0) row.fields += explorer.BreakCharacter();
    row.fields += fields[i];
  }
  return row;
} catch (...) {
  Raise("modPublic", "AddListItem");
}

void AddColumn(ctExplorer& explorer, const wxString& caption, int width) try {
  explorer.AddColumn({caption, width});
} catch (...) {
  Raise("modPublic", "AddColumn");
}

void SetColumnWidth(ctExplorer& explorer, int column, int width) try {
  explorer.SetColumnWidth(column, width);
} catch (...) {
  Raise("modPublic", "SetColumnWidth");
}

void SpecifyBreakChar(ctExplorer& explorer) try { explorer.SetBreakCharacter(wxUniChar(1)); } catch (...) {
  Raise("modShare", "SpecifyBreakChar");
}

}  // namespace mindloft
