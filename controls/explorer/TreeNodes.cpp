#include "controls/explorer/TreeNodes.h"

#include <algorithm>

namespace mindloft {

TreeNode* TreeNodes::At(int index) const {
  return index >= 0 && index < Count() ? nodes_[static_cast<std::size_t>(index)].get() : nullptr;
}

TreeNode& TreeNodes::Add(TreeNode* parent, const wxString& text, const wxString& key, int image,
                         std::int32_t data) {
  if (!parent) parent = At(0);
  auto added = std::make_unique<TreeNode>();
  added->text = text;
  added->key = key;
  added->image = image;
  added->data = data;
  added->parent = parent;
  const int index = parent ? parent->index + parent->size : 0;
  TreeNode& node = **nodes_.insert(nodes_.begin() + index, std::move(added));
  for (TreeNode* each = parent; each; each = each->parent) ++each->size;
  Renumber(index);
  return node;
}

void TreeNodes::Remove(TreeNode& node) {
  const int index = node.index;
  const int size = node.size;
  for (TreeNode* each = node.parent; each; each = each->parent) each->size -= size;
  nodes_.erase(nodes_.begin() + index, nodes_.begin() + index + size);
  Renumber(index);
}

void TreeNodes::Move(TreeNode& node, const TreeNode* before) {
  const int target = before ? before->index : node.parent->index + node.parent->size;
  const auto begin = nodes_.begin();
  const int end = node.index + node.size;
  const int from = std::min(node.index, target);
  if (target < node.index)
    std::rotate(begin + target, begin + node.index, begin + end);
  else if (target > end)
    std::rotate(begin + node.index, begin + end, begin + target);
  Renumber(from);
}

void TreeNodes::Renumber(int from) {
  for (int index = from; index < Count(); ++index) nodes_[static_cast<std::size_t>(index)]->index = index;
}

TreeNode* TreeNodes::Find(const wxString& key, const TreeNode* parent) const {
  const int first = parent ? parent->index + 1 : 0;
  const int end = parent ? parent->index + parent->size : Count();
  for (int index = first; index < end; ++index)
    if (At(index)->key == key) return At(index);
  return nullptr;
}

bool TreeNodes::IsWithin(const TreeNode* node, const TreeNode& ancestor) {
  return node && node->index >= ancestor.index && node->index < ancestor.index + ancestor.size;
}

}  // namespace mindloft
