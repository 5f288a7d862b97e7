#pragma once

#include <wx/panel.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "controls/explorer/ExplorerColumn.h"
#include "controls/explorer/ExplorerListState.h"
#include "controls/explorer/ExplorerRows.h"

class wxBitmapBundle;

namespace mindloft {

/// The explorer control: a tree on the left, a search box and a list on the right, a movable border between
/// them.
///
/// Tree nodes are addressed by their index: 0 is the root, the others follow in the order of the tree's rows
/// were all nodes expanded. An index changes when nodes before it come or go; a key does not.
class ctExplorer : public wxPanel {
 public:
  ctExplorer();  ///< for XRC; Create follows
  explicit ctExplorer(wxWindow* parent, const wxString& name = "ctExplorer", bool withTree = true);
  ~ctExplorer() override;
  bool Create(wxWindow* parent, const wxString& name = "ctExplorer", bool withTree = true);

  /// The images of nodes and rows, by index.
  void SetImages(std::vector<wxBitmapBundle> images);
  /// The character that separates a row's fields.
  void SetBreakCharacter(wxUniChar character);
  wxUniChar BreakCharacter() const;

  // Tree
  void ClearTree();
  /// Adds the last child of `parent` (-1: the root) and returns its index.
  int AddTreeNode(int parent, const wxString& text, const wxString& key, int image, std::int32_t data = 0);
  void RemoveTreeNode(int index);
  /// Moves a node with all below it before a sibling (-1: to the end) and returns its new index. Selection
  /// and expansion stay, and no event is raised.
  int MoveTreeNode(int index, int before);
  int TreeNodeCount() const;
  wxString TreeNodeText(int index) const;
  void SetTreeNodeText(int index, const wxString& text);
  wxString TreeNodeKey(int index) const;
  void SetTreeNodeKey(int index, const wxString& key);
  void SetTreeNodeImage(int index, int image);
  std::int32_t TreeNodeData(int index) const;
  void SetTreeNodeData(int index, std::int32_t data);
  int TreeNodeParent(int index) const;
  /// The node of that key below `parent` (-1: anywhere); -1 when there is none.
  int FindTreeNode(const wxString& key, int parent = -1) const;
  int SelectedTreeNode() const;
  /// Selects and shows the node; trChange is called when it was not selected before.
  void SelectTreeNode(int index);
  void ExpandTreeNode(int index);
  bool IsTreeNodeExpanded(int index) const;
  /// Whether it is on the screen.
  bool IsTreeNodeShown(int index) const;
  /// The topmost node on the screen; -1: none.
  int TopTreeNode() const;
  /// Scrolls so that the node is the topmost, as far as the end of the tree allows.
  void ScrollTreeTo(int index);

  // List
  /// Drops rows and columns.
  void ClearList();
  void AddColumn(const ExplorerColumn& column);
  /// An unknown index changes nothing.
  void SetColumnWidth(int column, int width);
  const std::vector<ExplorerColumn>& Columns() const;
  /// Shows the rows, sorted by the first sortable column, with an empty search box.
  void SetRows(std::shared_ptr<ExplorerRows> rows);
  /// Reads the rows anew; selection, focus and scroll position stay with their rows as far as these are still
  /// there.
  void RefreshList();
  std::int64_t ListCount() const;
  std::int64_t ListTotalCount() const;
  /// -1: none.
  std::int64_t FocusedListRow() const;
  std::int64_t SelectedListCount() const;
  /// In list order. Reads pages: for commands, not for painting.
  std::vector<ExplorerRow> SelectedListRows() const;
  /// Their keys alone, which mostly need not be read.
  std::vector<wxString> SelectedListKeys() const;
  ExplorerRow ListRow(std::int64_t row) const;
  /// Selects only that row and shows it.
  void SelectListRow(std::int64_t row);
  /// Selects only those rows and shows the first of them; ascending.
  void SelectListRows(const std::vector<std::int64_t>& rows);
  void SelectAllListRows();
  void SortBy(int column, bool descending);
  int SortColumn() const;
  bool SortDescending() const;
  void SetFilter(const wxString& text);
  wxString Filter() const;
  /// The present filter, order, selection and scroll place, and the same again for a list of the same
  /// columns.
  ExplorerListState ListState() const;
  void RestoreList(const ExplorerListState& state);
  /// Gives the rows check boxes. `isChecked` is asked whenever a row is drawn: it must be quick, ask no back
  /// end and throw nothing.
  void SetCheckBoxes(std::function<bool(const ExplorerRow& row)> isChecked);
  /// Who may not change what the check boxes tell can still scroll, search and sort: clicks on the boxes of a
  /// locked list do nothing, and it shows that by its background.
  void SetLocked(bool locked);
  bool Locked() const;
  /// Does what a click on the row's check box does; a row that is not there changes nothing.
  void ClickCheck(std::int64_t row);
  /// Draws the rows anew whose check marks the program has changed.
  void RefreshChecks();
  void SetSearchHint(const wxString& hint);
  void FocusSearch();
  void FocusList();
  void FocusTree();

  /// The place of the border, in pixels from the tree's edge, for remembering.
  int SashPosition() const;
  void SetSashPosition(int pixels);

  // Events; each may be empty. Exceptions of a handler are shown, never thrown into the toolkit.
  std::function<void(int index)> trChange;
  std::function<void(int index, wxPoint screen)> trContextMenu;
  std::function<void()> lvSelChange;
  std::function<void(std::int64_t row)> lvItemDblClick;  ///< also Enter
  std::function<void(wxPoint screen)> lvContextMenu;
  /// The user asks for the other state of a row's check box; whether it changes is up to the handler.
  std::function<void(const ExplorerRow& row)> lvCheckClick;
  std::function<void()> lvCountChange;                      ///< filter or refresh changed the number of rows
  std::function<bool(int keyCode, int modifiers)> keyDown;  ///< keys of tree and list; true: handled

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace mindloft
