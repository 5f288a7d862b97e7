#pragma once

#include "controls/explorer/ExplorerKeys.h"
#include "controls/explorer/ExplorerList.h"
#include "controls/explorer/ExplorerListPane.h"
#include "controls/explorer/ExplorerTree.h"
#include "controls/explorer/ctExplorer.h"

class wxSplitterWindow;

namespace mindloft {

/// What an explorer is made of.
struct ctExplorer::Impl {
  wxSplitterWindow* splitter = nullptr;  ///< nothing without a tree
  ExplorerTree* tree = nullptr;
  ExplorerListPane* pane = nullptr;
  std::unique_ptr<ExplorerKeys> keys;
  bool locked = false;  ///< the check boxes are only to look at

  ExplorerList& List() const { return pane->List(); }
  TreeNode* Node(int index) const { return tree ? tree->Nodes().At(index) : nullptr; }
};

}  // namespace mindloft
