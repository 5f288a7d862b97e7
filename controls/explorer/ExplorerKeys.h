#pragma once

#include <wx/event.h>

#include <functional>

class wxWindow;

namespace mindloft {

class ExplorerListPane;
class ExplorerTree;

/// The keys that lead from one part of an explorer to another: F6 and Shift+F6, Ctrl+F, and in the search box
/// Esc, Enter and Down.
class ExplorerKeys {
 public:
  /// `asked` is asked first about the keys of the tree and the list; true means that it handled the key.
  ExplorerKeys(wxWindow& explorer, ExplorerTree* tree, ExplorerListPane& pane,
               std::function<bool(int keyCode, int modifiers)> asked);

  void FocusSearch();

 private:
  bool HandleKey(int key, int modifiers);
  bool HandleSearchKey(int key, int modifiers);
  /// Moves the focus to the next part in the order tree, search box, list.
  void FocusNextPart(bool backwards);
  void FocusList();

  ExplorerTree* tree_;
  ExplorerListPane& pane_;
  std::function<bool(int, int)> asked_;
};

}  // namespace mindloft
