#include <gtest/gtest.h>

#include <functional>
#include <list>
#include <random>

#include "tests/controls/explorer/ExplorerFixture.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {

namespace {

/// What the tree should hold, written down the simplest way.
struct ModelNode {
  wxString key;
  ModelNode* parent = nullptr;
  std::list<ModelNode> children;
};

std::vector<ModelNode*> InOrder(ModelNode& root) {
  std::vector<ModelNode*> order;
  const std::function<void(ModelNode&)> visit = [&](ModelNode& node) {
    order.push_back(&node);
    for (ModelNode& child : node.children) visit(child);
  };
  visit(root);
  return order;
}

}  // namespace

class ExplorerTreeTest : public ExplorerFixture {
 protected:
  void SetUp() override {
    ExplorerFixture::SetUp();
    explorer_->trChange = [this](int index) { changes_.push_back(index); };
  }

  std::vector<int> changes_;
};

TEST_F(ExplorerTreeTest, IndexesFollowTheOrderOfTheRows) {
  std::mt19937 random(7);
  ModelNode root{"0", nullptr, {}};
  ASSERT_EQ(explorer_->AddTreeNode(-1, "root", "0", 0), 0);
  for (int step = 1; step <= 400; ++step) {
    std::vector<ModelNode*> order = InOrder(root);
    const int index = static_cast<int>(random() % order.size());
    ModelNode& node = *order[static_cast<std::size_t>(index)];
    if (index > 0 && random() % 4 == 0) {
      explorer_->RemoveTreeNode(index);
      node.parent->children.remove_if([&](const ModelNode& child) { return &child == &node; });
    } else {
      const wxString key = wxString::Format("%d", step);
      node.children.push_back({key, &node, {}});
      const int added = explorer_->AddTreeNode(index, "text " + key, key, 0, step);
      order = InOrder(root);
      ASSERT_EQ(order[static_cast<std::size_t>(added)], &node.children.back());
    }
  }
  const std::vector<ModelNode*> order = InOrder(root);
  ASSERT_EQ(explorer_->TreeNodeCount(), static_cast<int>(order.size()));
  for (int index = 0; index < explorer_->TreeNodeCount(); ++index) {
    const ModelNode& node = *order[static_cast<std::size_t>(index)];
    EXPECT_EQ(explorer_->TreeNodeKey(index), node.key);
    EXPECT_EQ(explorer_->FindTreeNode(node.key), index);
    EXPECT_EQ(
        explorer_->TreeNodeParent(index) < 0 ? "" : explorer_->TreeNodeKey(explorer_->TreeNodeParent(index)),
        node.parent ? node.parent->key : wxString());
    EXPECT_EQ(wxString::Format("%d", explorer_->TreeNodeData(index)), node.key);
  }
}

TEST_F(ExplorerTreeTest, AChangeOfTheSelectedNodeIsToldOnce) {
  explorer_->AddTreeNode(-1, "root", "59300", 0);
  const int domains = explorer_->AddTreeNode(0, "domains", "59301", 0);
  explorer_->AddTreeNode(0, "roles", "59302", 0);
  const int domain = explorer_->AddTreeNode(domains, "domain", "d", 0);
  explorer_->AddTreeNode(domain, "groups", "59304", 0);
  Settle();
  changes_.clear();

  explorer_->SelectTreeNode(3);
  explorer_->SelectTreeNode(3);
  EXPECT_TRUE(explorer_->IsTreeNodeExpanded(2));
  explorer_->AddTreeNode(-1, "last", "l", 0);
  explorer_->RemoveTreeNode(2);  // the domain: the selected node lies below it
  Settle();
  EXPECT_EQ(changes_, (std::vector<int>{3, 1}));
  EXPECT_EQ(explorer_->SelectedTreeNode(), 1);
  explorer_->RemoveTreeNode(2);
  explorer_->SelectTreeNode(99);
  explorer_->ClearTree();
  Settle();
  EXPECT_EQ(changes_.size(), 2U) << "neither another node's end nor clearing changes the selected node";
  EXPECT_EQ(explorer_->SelectedTreeNode(), -1);
  EXPECT_EQ(explorer_->FindTreeNode("59300"), -1);
}

}  // namespace mindloft::test
