#include "controls/explorer/ExplorerTree.h"

#include <wx/wupdlock.h>

#include <vector>

#include "core/ErrorHandling.h"

namespace mindloft {

namespace {

/// Leads from the native tree's item back to the node.
class NodeData : public wxTreeItemData {
 public:
  explicit NodeData(TreeNode* node) : node(node) {}
  TreeNode* node;
};

}  // namespace

ExplorerTree::ExplorerTree(wxWindow* parent)
    : wxTreeCtrl(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                 wxTR_HAS_BUTTONS | wxTR_SINGLE | wxTR_NO_LINES | wxTR_LINES_AT_ROOT, wxDefaultValidator,
                 "tree") {
  Bind(wxEVT_TREE_SEL_CHANGED,
       [this](wxTreeEvent&) { Guarded("ctExplorer", "TreeSelection", [this] { NoticeSelection(); }); });
  Bind(wxEVT_TREE_ITEM_MENU, [this](wxTreeEvent& event) {
    Guarded("ctExplorer", "TreeMenu",
            [&] { ShowMenu(NodeOf(event.GetItem()), ClientToScreen(event.GetPoint())); });
  });
  // Shift+F10: some desktops make no tree event of it. A click's event carries a place and came as one
  // already.
  Bind(wxEVT_CONTEXT_MENU, [this](wxContextMenuEvent& event) {
    if (event.GetPosition() != wxDefaultPosition) return event.Skip();
    Guarded("ctExplorer", "TreeMenu", [this] {
      wxRect place;
      TreeNode* node = SelectedNode();
      if (node && GetBoundingRect(ItemOf(*node), place, true))
        ShowMenu(node, ClientToScreen(place.GetBottomLeft()));
    });
  });
}

TreeNode* ExplorerTree::NodeOf(const wxTreeItemId& item) const {
  const auto* data = item.IsOk() ? static_cast<const NodeData*>(GetItemData(item)) : nullptr;
  return data ? data->node : nullptr;
}

TreeNode* ExplorerTree::SelectedNode() const {
  return nodes_.Count() > 0 ? NodeOf(GetSelection()) : nullptr;
}

TreeNode& ExplorerTree::AddNode(TreeNode* parent, const wxString& text, const wxString& key, int image,
                                std::int32_t data) {
  TreeNode& node = nodes_.Add(parent, text, key, image, data);
  changing_ = true;
  MakeItem(node);
  changing_ = false;
  return node;
}

void ExplorerTree::MakeItem(TreeNode& node) {
  auto* back = new NodeData(&node);
  if (!node.parent) {
    node.item = AddRoot(node.text, node.image, -1, back).GetID();
    return;
  }
  std::size_t place = 0;
  for (int index = node.parent->index + 1; index < node.index; index += nodes_.At(index)->size) ++place;
  const wxTreeItemId parent = ItemOf(*node.parent);
  const auto item = place < GetChildrenCount(parent, false)
                        ? InsertItem(parent, place, node.text, node.image, -1, back)
                        : AppendItem(parent, node.text, node.image, -1, back);
  node.item = item.GetID();
}

void ExplorerTree::MoveNode(TreeNode& node, TreeNode* before) {
  if (!node.parent || before == &node || (before && before->parent != node.parent)) return;
  const int former = node.index;
  TreeNode* selected = SelectedNode();
  std::vector<TreeNode*> moved, expanded;
  for (int index = node.index; index < node.index + node.size; ++index) {
    moved.push_back(nodes_.At(index));
    if (IsNodeExpanded(*moved.back())) expanded.push_back(moved.back());
  }
  nodes_.Move(node, before);
  if (node.index == former) return;
  changing_ = true;
  // A native tree knows no moving.
  const wxWindowUpdateLocker locker(this);
  const bool inside = TreeNodes::IsWithin(selected, node);
  if (inside) SelectItem(ItemOf(*node.parent));
  Delete(ItemOf(node));
  for (TreeNode* each : moved) MakeItem(*each);
  for (TreeNode* each : expanded) ExpandNode(*each);
  if (inside) SelectItem(ItemOf(*selected));
  changing_ = false;
  NoticeSelection();
}

void ExplorerTree::RemoveNode(TreeNode& node) {
  if (!node.parent) return ClearNodes();
  changing_ = true;
  if (TreeNodes::IsWithin(SelectedNode(), node)) SelectItem(ItemOf(*node.parent));
  Delete(ItemOf(node));
  changing_ = false;
  if (TreeNodes::IsWithin(noticed_, node)) noticed_ = nullptr;
  nodes_.Remove(node);
  NoticeSelection();
}

void ExplorerTree::ClearNodes() {
  changing_ = true;
  DeleteAllItems();
  changing_ = false;
  nodes_.Clear();
  noticed_ = nullptr;
}

void ExplorerTree::ShowText(TreeNode& node, const wxString& text) {
  if (node.text == text) return;
  node.text = text;
  SetItemText(ItemOf(node), text);
}

void ExplorerTree::ShowImage(TreeNode& node, int image) {
  if (node.image == image) return;
  node.image = image;
  SetItemImage(ItemOf(node), image);
}

void ExplorerTree::SelectNode(TreeNode& node) {
  changing_ = true;
  if (SelectedNode() != &node) SelectItem(ItemOf(node));
  EnsureVisible(ItemOf(node));
  changing_ = false;
  NoticeSelection();
}

void ExplorerTree::ExpandNode(TreeNode& node) {
  Expand(ItemOf(node));
}

bool ExplorerTree::IsNodeExpanded(const TreeNode& node) const {
  return IsExpanded(ItemOf(node));
}

TreeNode* ExplorerTree::TopNode() const {
  return nodes_.Count() > 0 ? NodeOf(GetFirstVisibleItem()) : nullptr;
}

void ExplorerTree::ScrollToTop(const TreeNode& node) {
  wxTreeItemId last = GetRootItem();
  while (IsExpanded(last) && GetChildrenCount(last, false) > 0) last = GetLastChild(last);
  // Some desktops scroll no further than the node needs: from below, that is to the top.
  ScrollTo(last);
  ScrollTo(ItemOf(node));
}

void ExplorerTree::NoticeSelection() {
  if (changing_) return;
  TreeNode* selected = SelectedNode();
  if (selected == noticed_) return;
  noticed_ = selected;
  if (selected && changed) changed(selected->index);
}

void ExplorerTree::ShowMenu(TreeNode* node, wxPoint screen) {
  if (!node) return;
  SelectNode(*node);
  if (contextMenu) contextMenu(node->index, screen);
}

}  // namespace mindloft
