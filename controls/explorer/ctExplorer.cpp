#include "controls/explorer/ctExplorer.h"

#include <wx/bmpbndl.h>
#include <wx/sizer.h>
#include <wx/splitter.h>
#include <wx/srchctrl.h>

#include "controls/explorer/ExplorerKeys.h"
#include "controls/explorer/ExplorerList.h"
#include "controls/explorer/ExplorerListPane.h"
#include "controls/explorer/ExplorerTree.h"
#include "core/ErrorHandling.h"

namespace mindloft {

namespace {

/// The narrowest that either side can be made, and the tree's width at first, in pixels at 96 dpi.
constexpr int kMinimumPane = 80;
constexpr int kTreeWidth = 220;

}  // namespace

struct ctExplorer::Impl {
  wxSplitterWindow* splitter = nullptr;  ///< nothing without a tree
  ExplorerTree* tree = nullptr;
  ExplorerListPane* pane = nullptr;
  std::unique_ptr<ExplorerKeys> keys;

  ExplorerList& List() const { return pane->List(); }
  TreeNode* Node(int index) const { return tree ? tree->Nodes().At(index) : nullptr; }
};

ctExplorer::ctExplorer() = default;

ctExplorer::ctExplorer(wxWindow* parent, const wxString& name, bool withTree) {
  Create(parent, name, withTree);
}

ctExplorer::~ctExplorer() = default;

bool ctExplorer::Create(wxWindow* parent, const wxString& name, bool withTree) {
  if (!wxPanel::Create(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxTAB_TRAVERSAL, name))
    return false;
  impl_ = std::make_unique<Impl>();
  wxWindow* content = nullptr;
  if (withTree) {
    impl_->splitter = new wxSplitterWindow(this, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                                           wxSP_LIVE_UPDATE | wxSP_NOBORDER, "splitter");
    impl_->tree = new ExplorerTree(impl_->splitter);
    impl_->pane = new ExplorerListPane(impl_->splitter);
    impl_->splitter->SetMinimumPaneSize(FromDIP(kMinimumPane));
    impl_->splitter->SetSashGravity(0);
    impl_->splitter->SplitVertically(impl_->tree, impl_->pane, FromDIP(kTreeWidth));
    content = impl_->splitter;
  } else {
    content = impl_->pane = new ExplorerListPane(this);
  }
  auto* sizer = new wxBoxSizer(wxVERTICAL);
  sizer->Add(content, 1, wxEXPAND);
  SetSizer(sizer);

  // The handlers are looked up when they are needed: they may be set at any time.
  const auto asked = [this](int key, int modifiers) { return keyDown && keyDown(key, modifiers); };
  impl_->keys = std::make_unique<ExplorerKeys>(*this, impl_->tree, *impl_->pane, asked);
  if (impl_->tree) {
    impl_->tree->changed = [this](int index) {
      Guarded("ctExplorer", "trChange", [&] {
        if (trChange) trChange(index);
      });
    };
    impl_->tree->contextMenu = [this](int index, wxPoint screen) {
      Guarded("ctExplorer", "trContextMenu", [&] {
        if (trContextMenu) trContextMenu(index, screen);
      });
    };
  }
  impl_->List().selectionChanged = [this] {
    Guarded("ctExplorer", "lvSelChange", [&] {
      if (lvSelChange) lvSelChange();
    });
  };
  impl_->pane->countChanged = [this] {
    Guarded("ctExplorer", "lvCountChange", [&] {
      if (lvCountChange) lvCountChange();
    });
  };
  impl_->pane->Input().activated = [this](std::int64_t row) {
    Guarded("ctExplorer", "lvItemDblClick", [&] {
      if (lvItemDblClick) lvItemDblClick(row);
    });
  };
  impl_->pane->Input().contextMenu = [this](wxPoint screen) {
    Guarded("ctExplorer", "lvContextMenu", [&] {
      if (lvContextMenu) lvContextMenu(screen);
    });
  };
  impl_->pane->Input().checkClicked = [this](std::int64_t row) { ClickCheck(row); };
  impl_->pane->Input().keyDown = asked;
  return true;
}

void ctExplorer::SetImages(std::vector<wxBitmapBundle> images) {
  wxVector<wxBitmapBundle> bundles;
  for (const wxBitmapBundle& image : images) bundles.push_back(image);
  if (impl_->tree) impl_->tree->SetImages(bundles);
  impl_->List().SetSmallImages(bundles);
}

void ctExplorer::SetBreakCharacter(wxUniChar character) {
  impl_->List().SetBreakCharacter(character);
}

wxUniChar ctExplorer::BreakCharacter() const {
  return impl_->List().BreakCharacter();
}

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

void ctExplorer::ClearList() {
  impl_->pane->ClearRows();
}

void ctExplorer::AddColumn(const ExplorerColumn& column) {
  impl_->pane->AddColumn(column);
}

void ctExplorer::SetColumnWidth(int column, int width) {
  impl_->pane->SetColumnWidth(column, width);
}

const std::vector<ExplorerColumn>& ctExplorer::Columns() const {
  return impl_->pane->Columns();
}

void ctExplorer::SetRows(std::shared_ptr<ExplorerRows> rows) {
  impl_->pane->SetRows(std::move(rows));
}

void ctExplorer::RefreshList() {
  impl_->pane->RefreshRows();
}

std::int64_t ctExplorer::ListCount() const {
  return impl_->List().Selection().RowCount();
}

std::int64_t ctExplorer::ListTotalCount() const {
  return impl_->pane->TotalCount();
}

std::int64_t ctExplorer::FocusedListRow() const {
  return impl_->List().Selection().Focus();
}

std::int64_t ctExplorer::SelectedListCount() const {
  return impl_->List().Selection().Selected().Count();
}

std::vector<ExplorerRow> ctExplorer::SelectedListRows() const try {
  return impl_->pane->SelectedRows();
} catch (...) {
  mindloft::Raise("ctExplorer", "SelectedListRows");
}

ExplorerRow ctExplorer::ListRow(std::int64_t row) const try { return impl_->pane->Row(row); } catch (...) {
  mindloft::Raise("ctExplorer", "ListRow");
}

void ctExplorer::SelectListRow(std::int64_t row) {
  impl_->List().ChangeSelection([&](SelectionModel& selection) { return selection.SelectOnly(row); });
}

void ctExplorer::SelectAllListRows() {
  impl_->List().ChangeSelection([](SelectionModel& selection) { return selection.SelectAll(); });
}

void ctExplorer::SortBy(int column, bool descending) {
  impl_->pane->SortBy(column, descending);
}

int ctExplorer::SortColumn() const {
  return impl_->pane->SortColumn();
}

bool ctExplorer::SortDescending() const {
  return impl_->pane->SortDescending();
}

void ctExplorer::SetFilter(const wxString& text) {
  impl_->pane->FilterBy(text);
}

wxString ctExplorer::Filter() const {
  return impl_->pane->FilterText();
}

ExplorerListState ctExplorer::ListState() const {
  return impl_->pane->State();
}

void ctExplorer::RestoreList(const ExplorerListState& state) {
  impl_->pane->RestoreState(state);
}

void ctExplorer::SetCheckBoxes(std::function<bool(const ExplorerRow& row)> isChecked) {
  impl_->List().SetChecks(std::move(isChecked));
}

void ctExplorer::ClickCheck(std::int64_t row) {
  if (!impl_->List().HasChecks() || row < 0 || row >= ListCount() || !lvCheckClick) return;
  Guarded("ctExplorer", "lvCheckClick", [&] {
    const ExplorerRow clicked = ListRow(row);
    lvCheckClick(clicked);
    RefreshChecks();
  });
}

void ctExplorer::RefreshChecks() {
  impl_->List().Refresh();
}

void ctExplorer::SetSearchHint(const wxString& hint) {
  impl_->pane->Search().SetDescriptiveText(hint);
}

void ctExplorer::FocusSearch() {
  impl_->keys->FocusSearch();
}

void ctExplorer::FocusList() {
  impl_->List().SetFocus();
}

void ctExplorer::FocusTree() {
  if (impl_->tree) impl_->tree->SetFocus();
}

int ctExplorer::SashPosition() const {
  return impl_->splitter ? impl_->splitter->GetSashPosition() : 0;
}

void ctExplorer::SetSashPosition(int pixels) {
  if (impl_->splitter) impl_->splitter->SetSashPosition(pixels);
}

}  // namespace mindloft
