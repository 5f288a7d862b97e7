#include "platform/ui/ScrollHelpers.h"

#include <wx/listctrl.h>
#include <wx/scrolwin.h>
#include <wx/treectrl.h>
#include <wx/window.h>

#include <algorithm>

namespace mindloft::platform {
namespace {

/// The part of a control that scrolls: itself, or the child in which the toolkit's own lists draw their rows.
wxWindow* ScrolledPart(wxWindow* window) {
  if (!window || dynamic_cast<wxScrollHelperBase*>(window)) return window;
  for (auto* child : window->GetChildren()) {
    if (dynamic_cast<wxScrollHelperBase*>(child)) return child;
  }
  return window;
}

/// How many of the scroll bar's units a line takes: a tree scrolls by pixels, a list by lines.
int UnitsPerLine(wxWindow* part) {
  auto* tree = dynamic_cast<wxTreeCtrlBase*>(part);
  auto* scrolled = dynamic_cast<wxScrollHelperBase*>(part);
  if (!tree || !scrolled) return 1;
  int xUnit = 0, yUnit = 0;
  scrolled->GetScrollPixelsPerUnit(&xUnit, &yUnit);
  wxRect line;
  auto first = tree->GetFirstVisibleItem();
  if (yUnit <= 0 || !first.IsOk() || !tree->GetBoundingRect(first, line)) return 1;
  return std::max(1, (line.height + yUnit / 2) / yUnit);
}

/// The toolkit's list keeps its first visible row in mind and learns of no scrolling but its own.
void ScrollList(wxListCtrl& list, long lines) {
  wxRect row;
  if (list.GetItemCount() == 0 || !list.GetItemRect(0, row)) return;
  lines = std::max(lines, -list.GetTopItem());
  list.ScrollList(0, static_cast<int>(lines) * row.height);
}

void Collect(const wxWindow* parent, std::vector<WindowHandle>& windows) {
  for (const auto* child : parent->GetChildren()) {
    windows.push_back(HandleOf(child));
    Collect(child, windows);
  }
}

}  // namespace

bool HasScrollBar(const wxWindow* window) {
  auto* part = ScrolledPart(const_cast<wxWindow*>(window));
  return part && part->GetScrollRange(wxVERTICAL) > part->GetScrollThumb(wxVERTICAL);
}

void ScrollToPos(wxWindow* window, int position) {
  auto* part = ScrolledPart(window);
  if (!HasScrollBar(part)) return;
  if (auto* list = dynamic_cast<wxListCtrl*>(window)) return ScrollList(*list, position - list->GetTopItem());
  position = std::clamp(position, 0, part->GetScrollRange(wxVERTICAL) - part->GetScrollThumb(wxVERTICAL));
  if (auto* scrolled = dynamic_cast<wxScrollHelperBase*>(part)) {
    scrolled->Scroll(-1, position);
  } else {
    part->ScrollLines(position - part->GetScrollPos(wxVERTICAL));
  }
}

void ScrollToLine(wxWindow* window, int lines) {
  auto* part = ScrolledPart(window);
  if (!part) return;
  if (auto* list = dynamic_cast<wxListCtrl*>(window)) return ScrollList(*list, lines);
  if (dynamic_cast<wxScrollHelperBase*>(part)) {
    ScrollToPos(part, part->GetScrollPos(wxVERTICAL) + lines * UnitsPerLine(part));
  } else {
    part->ScrollLines(lines);
  }
}

std::vector<WindowHandle> EnumAllWindows(WindowHandle parent) {
  std::vector<WindowHandle> windows;
  if (parent) Collect(reinterpret_cast<const wxWindow*>(parent), windows);
  return windows;
}

}  // namespace mindloft::platform
