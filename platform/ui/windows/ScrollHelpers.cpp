#include "platform/ui/ScrollHelpers.h"

#include <windows.h>
#include <wx/window.h>

#include <algorithm>
#include <cstdlib>

#include "platform/ui/MouseWheel.h"

namespace mindloft::platform {
namespace {

BOOL CALLBACK Collect(HWND window, LPARAM list) {
  reinterpret_cast<std::vector<WindowHandle>*>(list)->push_back(reinterpret_cast<WindowHandle>(window));
  return TRUE;
}

void Send(HWND window, WPARAM request, int times) {
  for (int i = 0; i < times; ++i) SendMessageW(window, WM_VSCROLL, request, 0);
}

int Position(HWND window) {
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_POS;
  return GetScrollInfo(window, SB_VERT, &info) ? info.nPos : 0;
}

}  // namespace

bool HasScrollBar(const wxWindow* window) {
  return HaveScrollBar(window);
}

void ScrollToLine(wxWindow* window, int lines) {
  if (window) Send(window->GetHWND(), lines < 0 ? SB_LINEUP : SB_LINEDOWN, std::abs(lines));
}

void ScrollToPos(wxWindow* window, int position) {
  if (!HasScrollBar(window)) return;
  HWND handle = window->GetHWND();
  // Lists and trees scroll by whole lines only and take no position that is set from outside.
  for (int now = Position(handle), before = -1; now != before && now != position; now = Position(handle)) {
    before = now;
    bool isBelow = position > now;
    Send(handle, isBelow ? SB_LINEDOWN : SB_LINEUP, 1);
    if ((Position(handle) > position) == isBelow && Position(handle) != position) return;
  }
}

std::vector<WindowHandle> EnumAllWindows(WindowHandle parent) {
  std::vector<WindowHandle> windows;
  EnumChildWindows(reinterpret_cast<HWND>(parent), &Collect, reinterpret_cast<LPARAM>(&windows));
  return windows;
}

}  // namespace mindloft::platform
