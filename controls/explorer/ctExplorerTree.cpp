// The tree of ctExplorer.
#include "controls/explorer/ctExplorerImpl.h"

namespace mindloft {

void ctExplorer::ClearTree() {
  if (impl_->tree) impl_->tree->ClearNodes();
}

int ctExplorer::AddTreeNode(int parent, const wxString& text, const wxString& key, int image,
                            std::int32_t data) {
  return impl_->tree ? impl_->tree->AddNode(impl_->Node(parent), text, key, image, data).index : -1;
}

void ctExplorer::RemoveTreeNode(int index) {
  if (TreeNode* node = impl_->Node(index)) impl_->tree->RemoveNode(*node);
}

int ctExplorer::MoveTreeNode(int index, int before) {
  TreeNode* node = impl_->Node(index);
  if (!node) return -1;
  impl_->tree->MoveNode(*node, impl_->Node(before));
  return node->index;
}

int ctExplorer::TreeNodeCount() const {
  return impl_->tree ? impl_->tree->Nodes().Count() : 0;
}

wxString ctExplorer::TreeNodeText(int index) const {
  const TreeNode* node = impl_->Node(index);
  return node ? node->text : wxString();
}

void ctExplorer::SetTreeNodeText(int index, const wxString& text) {
  if (TreeNode* node = impl_->Node(index)) impl_->tree->ShowText(*node, text);
}

wxString ctExplorer::TreeNodeKey(int index) const {
  const TreeNode* node = impl_->Node(index);
  return node ? node->key : wxString();
}

void ctExplorer::SetTreeNodeKey(int index, const wxString& key) {
  if (TreeNode* node = impl_->Node(index)) node->key = key;
}

void ctExplorer::SetTreeNodeImage(int index, int image) {
  if (TreeNode* node = impl_->Node(index)) impl_->tree->ShowImage(*node, image);
}

std::int32_t ctExplorer::TreeNodeData(int index) const {
  const TreeNode* node = impl_->Node(index);
  return node ? node->data : 0;
}

void ctExplorer::SetTreeNodeData(int index, std::int32_t data) {
  if (TreeNode* node = impl_->Node(index)) node->data = data;
}

int ctExplorer::TreeNodeParent(int index) const {
  const TreeNode* node = impl_->Node(index);
  return node && node->parent ? node->parent->index : -1;
}

int ctExplorer::FindTreeNode(const wxString& key, int parent) const {
  const TreeNode* below = impl_->Node(parent);
  if (!impl_->tree || (parent >= 0 && !below)) return -1;
  const TreeNode* node = impl_->tree->Nodes().Find(key, below);
  return node ? node->index : -1;
}

int ctExplorer::SelectedTreeNode() const {
  const TreeNode* node = impl_->tree ? impl_->tree->SelectedNode() : nullptr;
  return node ? node->index : -1;
}

void ctExplorer::SelectTreeNode(int index) {
  if (TreeNode* node = impl_->Node(index)) impl_->tree->SelectNode(*node);
}

void ctExplorer::ExpandTreeNode(int index) {
  if (TreeNode* node = impl_->Node(index)) impl_->tree->ExpandNode(*node);
}

bool ctExplorer::IsTreeNodeExpanded(int index) const {
  const TreeNode* node = impl_->Node(index);
  return node && impl_->tree->IsNodeExpanded(*node);
}

bool ctExplorer::IsTreeNodeShown(int index) const {
  const TreeNode* node = impl_->Node(index);
  return node && impl_->tree->IsNodeShown(*node);
}

int ctExplorer::TopTreeNode() const {
  const TreeNode* node = impl_->tree ? impl_->tree->TopNode() : nullptr;
  return node ? node->index : -1;
}

void ctExplorer::ScrollTreeTo(int index) {
  if (const TreeNode* node = impl_->Node(index)) impl_->tree->ScrollToTop(*node);
}

}  // namespace mindloft
