#include <wx/bmpbndl.h>
#include <wx/sizer.h>
#include <wx/splitter.h>
#include <wx/srchctrl.h>

#include "controls/explorer/ctExplorerImpl.h"
#include "core/ErrorHandling.h"

namespace mindloft {

namespace {

/// The narrowest that either side can be made, and the tree's width at first, in pixels at 96 dpi.
constexpr int kMinimumPane = 80;
constexpr int kTreeWidth = 220;

}  // namespace

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
