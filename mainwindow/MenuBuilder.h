#pragma once

#include <wx/string.h>

#include <memory>
#include <vector>

#include "mainwindow/SelectionReader.h"

class wxFrame;
class wxMenu;

namespace mindloft {

class CommandSet;
class ObjectKindRegistry;

/// Makes menus from the table of commands: the menu bar, and the context menus of tree and list.
class MenuBuilder {
 public:
  MenuBuilder(wxFrame& frame, const CommandSet& commands, const ObjectKindRegistry& kinds);

  /// Gives the frame a menu bar in the current language, in the place of the one it has.
  void BuildMenuBar();
  /// The context menu of a kind's objects: its own commands, then those of the list or tree.
  std::unique_ptr<wxMenu> ContextMenu(const DirectoryKind* listed, const SelectionState& selection,
                                      bool ofList) const;
  /// Lists the languages once a menu is opened: each one's file is read for it, for which the start has no
  /// time.
  void ListLanguages();
  /// Enables and checks all items of the menu bar.
  void Update(const SelectionState& selection);

  struct SortColumn {
    wxString caption;
    bool canSort = false;
  };
  /// The items of "sort by"; `current` and `descending` say how the list is sorted now.
  void ShowSortColumns(const std::vector<SortColumn>& columns, int current, bool descending);
  /// The identifier of the item that sorts by a column; as many as ShowSortColumns offers at most.
  static int SortItemId(int column);
  static constexpr int kMostSortColumns = 8;

 private:
  wxMenu* BuildMenu(const std::vector<wxString>& names);
  void Append(wxMenu& menu, const wxString& name) const;
  std::vector<wxString> NewCommands() const;

  wxFrame& frame_;
  const CommandSet& commands_;
  const ObjectKindRegistry& kinds_;
  wxMenu* sortMenu_ = nullptr;
  wxMenu* languageMenu_ = nullptr;
  std::vector<SortColumn> sortColumns_;
};

}  // namespace mindloft
