#pragma once

#include <wx/string.h>

#include <cstdint>
#include <memory>
#include <vector>

namespace mindloft {

/// One node of an explorer tree.
struct TreeNode {
  wxString text;
  wxString key;
  int image = -1;
  std::int32_t data = 0;
  TreeNode* parent = nullptr;
  int index = 0;         ///< its place in the order of the tree's rows were all nodes expanded
  int size = 1;          ///< nodes of its subtree, itself included
  void* item = nullptr;  ///< the native tree's identifier
};

/// The nodes of an explorer tree by their index. Adding a last child costs as much as there are nodes after
/// it.
class TreeNodes {
 public:
  int Count() const { return static_cast<int>(nodes_.size()); }
  /// Nothing when the index is out of range.
  TreeNode* At(int index) const;
  /// Adds the last child of `parent`; without a parent the root, or the root's last child when there is a
  /// root.
  TreeNode& Add(TreeNode* parent, const wxString& text, const wxString& key, int image, std::int32_t data);
  /// Removes the node and everything below it.
  void Remove(TreeNode& node);
  /// Moves the node with everything below it before a sibling; nothing: to the end of its parent's children.
  void Move(TreeNode& node, const TreeNode* before);
  void Clear() { nodes_.clear(); }
  /// The first node of that key below `parent` (nothing: anywhere).
  TreeNode* Find(const wxString& key, const TreeNode* parent) const;
  static bool IsWithin(const TreeNode* node, const TreeNode& ancestor);

 private:
  std::vector<std::unique_ptr<TreeNode>> nodes_;

  void Renumber(int from);
};

}  // namespace mindloft
