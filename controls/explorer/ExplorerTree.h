#pragma once

#include <wx/treectrl.h>

#include <functional>

#include "controls/explorer/TreeNodes.h"

namespace mindloft {

/// The tree of an explorer. Desktops differ in which events a program's own change sends; here `changed` is
/// called exactly once for each change of the selected node, whoever made it, and never by `ClearNodes`.
class ExplorerTree : public wxTreeCtrl {
 public:
  /// Named "tree".
  explicit ExplorerTree(wxWindow* parent);

  const TreeNodes& Nodes() const { return nodes_; }
  TreeNode& AddNode(TreeNode* parent, const wxString& text, const wxString& key, int image,
                    std::int32_t data);
  /// When the selected node goes, its parent becomes the selected one.
  void RemoveNode(TreeNode& node);
  /// Before a sibling; nothing: to the end. Selection and expansion stay.
  void MoveNode(TreeNode& node, TreeNode* before);
  void ClearNodes();
  void ShowText(TreeNode& node, const wxString& text);
  void ShowImage(TreeNode& node, int image);
  void SelectNode(TreeNode& node);
  void ExpandNode(TreeNode& node);
  bool IsNodeExpanded(const TreeNode& node) const;
  /// Whether the node is on the screen, at least in part.
  bool IsNodeShown(const TreeNode& node) const { return IsVisible(ItemOf(node)); }
  /// The topmost node on the screen; nothing where there is none.
  TreeNode* TopNode() const;
  /// Scrolls so that the node is the topmost, as far as the end of the tree allows.
  void ScrollToTop(const TreeNode& node);
  /// Nothing when no node is selected.
  TreeNode* SelectedNode() const;

  std::function<void(int index)> changed;
  std::function<void(int index, wxPoint screen)> contextMenu;

 private:
  TreeNode* NodeOf(const wxTreeItemId& item) const;
  static wxTreeItemId ItemOf(const TreeNode& node) { return wxTreeItemId(node.item); }
  /// Calls `changed` when another node is selected than was at the last call.
  void NoticeSelection();
  /// Makes the native item of a node whose place among the nodes is settled.
  void MakeItem(TreeNode& node);
  void ShowMenu(TreeNode* node, wxPoint screen);

  TreeNodes nodes_;
  TreeNode* noticed_ = nullptr;
  bool changing_ = false;
};

}  // namespace mindloft
