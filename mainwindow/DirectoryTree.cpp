#include "mainwindow/DirectoryTree.h"

#include "backend/corvane/DomainContext.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "controls/explorer/ctExplorer.h"
#include "controls/rows/DirectoryImages.h"
#include "core/ErrorHandling.h"
#include "core/modShare.h"
#include "mainwindow/DomainContexts.h"
#include "mainwindow/TreeKeys.h"
#include "mainwindow/WorkingArea.h"

namespace mindloft {

namespace {

constexpr int kRootIndex = 0;

/// The caption of a fixed node: its key is the number of its text.
wxString Caption(const wxString& key) {
  long number = 0;
  key.ToLong(&number);
  return GetResource().GetString(static_cast<int>(number));
}

int DomainImageOf(const Corvane::DomainContext& context) {
  return context.KDomain()->Disabled() ? DisabledDomainImage : DomainImage;
}

}  // namespace

void DirectoryTree::BuildRoot() try {
  area_.Explorer().ClearTree();
  const int root = area_.Explorer().AddTreeNode(-1, Caption(keys::kRoot), keys::kRoot, RootImage);
  for (const char* key : {keys::kDomains, keys::kRoles, keys::kUsers})
    area_.Explorer().AddTreeNode(root, Caption(key), key, FolderImage);
} catch (...) {
  Raise("frmSysAdmin", "BuildRoot");
}

void DirectoryTree::DisplayTreeDomains() try {
  for (const auto& key : domains_.Keys()) AddDomain(domains_.Item(key));
} catch (...) {
  Raise("frmSysAdmin", "DisplayTreeDomains");
}

void DirectoryTree::DisplayDomainFixChild(int domainIndex) try {
  for (const char* key : {keys::kDomainGroups, keys::kDomainUsers})
    area_.Explorer().AddTreeNode(domainIndex, Caption(key), key, FolderImage);
} catch (...) {
  Raise("frmSysAdmin", "DisplayDomainFixChild");
}

void DirectoryTree::AddDomain(const std::shared_ptr<Corvane::DomainContext>& context) {
  const int folder = Child(kRootIndex, keys::kDomains);
  const int index = area_.Explorer().AddTreeNode(folder, ToWx(context->KDomain()->Name()), {}, DomainImage);
  area_.Explorer().SetTreeNodeImage(index, DomainImageOf(*context));
  area_.Explorer().SetTreeNodeKey(index, DomainContexts::KeyOf(*context));
  context->SetNodeId(CreateId());
  area_.Explorer().SetTreeNodeData(index, context->NodeId());
  DisplayDomainFixChild(index);
}

void DirectoryTree::UpdateDomain(const std::shared_ptr<Corvane::DomainContext>& context) {
  auto& explorer = area_.Explorer();
  const wxString key = DomainContexts::KeyOf(*context);
  const int index = DomainNode(key);
  if (index < 0) {
    AddDomain(context);
  } else {
    explorer.SetTreeNodeText(index, ToWx(context->KDomain()->Name()));
    explorer.SetTreeNodeImage(index, DomainImageOf(*context));
    context->SetNodeId(explorer.TreeNodeData(index));
  }
  const wxString next = domains_.KeyAfter(key);
  explorer.MoveTreeNode(DomainNode(key), next.empty() ? -1 : DomainNode(next));
}

void DirectoryTree::RemoveDomain(const wxString& key) {
  const int index = DomainNode(key);
  if (index >= 0) area_.Explorer().RemoveTreeNode(index);
}

wxString DirectoryTree::KindKey(int index) const {
  return IsDomain(index) ? wxString(keys::kAnyDomain) : area_.Explorer().TreeNodeKey(index);
}

bool DirectoryTree::IsDomain(int index) const {
  // By its place: a domain's key is a number too and might be that of a fixed node.
  const int parent = area_.Explorer().TreeNodeParent(index);
  return parent > kRootIndex && area_.Explorer().TreeNodeParent(parent) == kRootIndex &&
         area_.Explorer().TreeNodeKey(parent) == keys::kDomains;
}

wxString DirectoryTree::DomainKey(int index) const {
  for (; index > kRootIndex; index = area_.Explorer().TreeNodeParent(index))
    if (IsDomain(index)) return area_.Explorer().TreeNodeKey(index);
  return {};
}

int DirectoryTree::Child(int parent, const wxString& key) const {
  const int count = area_.Explorer().TreeNodeCount();
  for (int index = parent + 1; index < count; ++index)
    if (area_.Explorer().TreeNodeParent(index) == parent && area_.Explorer().TreeNodeKey(index) == key)
      return index;
  return -1;
}

int DirectoryTree::DomainNode(const wxString& key) const {
  const int folder = Child(kRootIndex, keys::kDomains);
  return folder < 0 ? -1 : Child(folder, key);
}

wxString DirectoryTree::Path(int index) const {
  wxString path;
  for (; index >= 0; index = area_.Explorer().TreeNodeParent(index))
    path.Prepend("/" + area_.Explorer().TreeNodeKey(index));
  return path;
}

int DirectoryTree::NodeAt(const wxString& path) const {
  int node = -1;
  for (const auto& key : wxSplit(path.Mid(1), '/', '\0')) {
    const int child = Child(node, key);
    if (child < 0) return node;
    node = child;
  }
  return node;
}

DirectoryTree::State DirectoryTree::Remember() const {
  State state;
  const int count = area_.Explorer().TreeNodeCount();
  for (int index = 0; index < count; ++index)
    if (area_.Explorer().IsTreeNodeExpanded(index)) state.expanded.insert(Path(index));
  const int selected = area_.Explorer().SelectedTreeNode();
  if (selected >= 0) state.selected = Path(selected);
  state.selectedShown = area_.Explorer().IsTreeNodeShown(selected);
  state.top = Path(area_.Explorer().TopTreeNode());
  return state;
}

void DirectoryTree::Restore(const State& state) {
  const int count = area_.Explorer().TreeNodeCount();
  for (int index = 0; index < count; ++index)
    if (state.expanded.contains(Path(index))) area_.Explorer().ExpandTreeNode(index);
  const int selected = state.selected.empty() ? -1 : NodeAt(state.selected);
  if (selected >= 0) area_.Explorer().SelectTreeNode(selected);
  if (state.top.empty()) return;
  area_.Explorer().ScrollTreeTo(NodeAt(state.top));
  if (state.selectedShown) area_.Explorer().SelectTreeNode(selected);
}

}  // namespace mindloft
