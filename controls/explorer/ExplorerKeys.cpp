#include "controls/explorer/ExplorerKeys.h"

#include <wx/srchctrl.h>

#include <algorithm>
#include <utility>
#include <vector>

#include "controls/explorer/ExplorerList.h"
#include "controls/explorer/ExplorerListPane.h"
#include "controls/explorer/ExplorerTree.h"
#include "core/ErrorHandling.h"

namespace mindloft {

namespace {

bool HasFocus(const wxWindow& part) {
  for (const wxWindow* each = wxWindow::FindFocus(); each; each = each->GetParent())
    if (each == &part) return true;
  return false;
}

}  // namespace

ExplorerKeys::ExplorerKeys(wxWindow& explorer, ExplorerTree* tree, ExplorerListPane& pane,
                           std::function<bool(int, int)> asked)
    : tree_(tree), pane_(pane), asked_(std::move(asked)) {
  explorer.Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& event) {
    bool handled = false;
    Guarded("ctExplorer", "CharHook", [&] { handled = HandleKey(event.GetKeyCode(), event.GetModifiers()); });
    if (!handled) event.Skip();
  });
  if (!tree_) return;
  tree_->Bind(wxEVT_KEY_DOWN, [this](wxKeyEvent& event) {
    bool handled = false;
    Guarded("ctExplorer", "TreeKeyDown", [&] { handled = asked_(event.GetKeyCode(), event.GetModifiers()); });
    if (!handled) event.Skip();
  });
}

bool ExplorerKeys::HandleKey(int key, int modifiers) {
  const bool inSearch = HasFocus(pane_.Search());
  if (inSearch && HandleSearchKey(key, modifiers)) return true;
  const bool next = key == WXK_F6 && (modifiers == wxMOD_NONE || modifiers == wxMOD_SHIFT);
  const bool search = key == 'F' && modifiers == wxMOD_CONTROL;
  if (!next && !search) return false;
  if (!inSearch && asked_(key, modifiers)) return true;
  if (search)
    FocusSearch();
  else
    FocusNextPart(modifiers == wxMOD_SHIFT);
  return true;
}

bool ExplorerKeys::HandleSearchKey(int key, int modifiers) {
  if (modifiers != wxMOD_NONE) return false;
  switch (key) {
    case WXK_ESCAPE:
      if (pane_.Search().IsEmpty())
        FocusList();
      else
        pane_.FilterBy(wxString());
      return true;
    case WXK_DOWN:
    case WXK_NUMPAD_DOWN:
    case WXK_RETURN:
    case WXK_NUMPAD_ENTER:
      FocusList();
      return true;
    default:
      return false;
  }
}

void ExplorerKeys::FocusSearch() {
  if (!pane_.Search().IsEnabled()) return;
  pane_.Search().SetFocus();
  pane_.Search().SelectAll();
}

void ExplorerKeys::FocusList() {
  ExplorerList& list = pane_.List();
  list.SetFocus();
  if (list.Selection().Focus() < 0 && list.Selection().RowCount() > 0)
    list.ChangeSelection([](SelectionModel& selection) { return selection.SelectOnly(0); });
}

void ExplorerKeys::FocusNextPart(bool backwards) {
  std::vector<wxWindow*> parts;
  if (tree_) parts.push_back(tree_);
  if (pane_.Search().IsEnabled()) parts.push_back(&pane_.Search());
  parts.push_back(&pane_.List());
  if (backwards) std::reverse(parts.begin(), parts.end());
  const auto present =
      std::find_if(parts.begin(), parts.end(), [](const wxWindow* part) { return HasFocus(*part); });
  const bool last = present == parts.end() || present + 1 == parts.end();
  (last ? parts.front() : *(present + 1))->SetFocus();
}

}  // namespace mindloft
