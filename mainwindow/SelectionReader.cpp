#include "mainwindow/SelectionReader.h"

#include "controls/explorer/ctExplorer.h"
#include "mainwindow/DirectoryLists.h"
#include "mainwindow/DirectoryTree.h"
#include "mainwindow/DomainContexts.h"
#include "mainwindow/ObjectKindRegistry.h"
#include "mainwindow/TreeKeys.h"
#include "mainwindow/WorkingArea.h"

namespace mindloft {

SelectionReader::SelectionReader(WorkingArea& area, const ObjectKindRegistry& kinds,
                                 const DirectoryTree& tree, const DomainContexts& domains,
                                 const DirectoryLists& lists)
    : area_(area), kinds_(kinds), tree_(tree), domains_(domains), lists_(lists) {}

SelectionState SelectionReader::Read() const {
  SelectionState state;
  state.scope.server = lists_.Server();
  state.rows = area_.Explorer().ListCount();
  const int index = area_.Explorer().SelectedTreeNode();
  if (index < 0) return state;
  state.nodeKey = area_.Explorer().TreeNodeKey(index);
  state.scope.domain = domains_.Item(tree_.DomainKey(index));
  const auto* kind = kinds_.Find(tree_.KindKey(index));
  if (kind && kind->IsObject()) state.listed = kind;

  const auto selected = area_.Explorer().SelectedListCount();
  if (state.listed && selected > 0) {
    state.target = state.listed;
    state.targets = selected;
  } else if (selected == 0 && tree_.IsDomain(index)) {
    state.target = kinds_.Find(keys::kDomains);
    state.targets = 1;
  }
  return state;
}

std::vector<wxString> SelectionReader::Keys() const {
  if (area_.Explorer().SelectedListCount() > 0) return ListKeys();
  const int index = area_.Explorer().SelectedTreeNode();
  if (index < 0 || !tree_.IsDomain(index)) return {};
  return {area_.Explorer().TreeNodeKey(index)};
}

std::vector<wxString> SelectionReader::ListKeys() const {
  return area_.Explorer().SelectedListKeys();
}

}  // namespace mindloft
