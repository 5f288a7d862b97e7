#include "platform/ui/MouseWheel.h"

#include <windows.h>
#include <wx/msw/private.h>
#include <wx/window.h>

#include <map>

#include "platform/ui/WheelTarget.h"

namespace mindloft::platform {
namespace {

constexpr int ClassNameSize = 30;
constexpr wchar_t ControlHost[] = L"AfxOleControl42";

std::map<HWND, WNDPROC>& Procedures() {
  static std::map<HWND, WNDPROC> procedures;
  return procedures;
}

bool HasVerticalBar(HWND window) {
  return (GetWindowLongPtrW(window, GWL_STYLE) & WS_VSCROLL) != 0;
}

/// Scrolls a control of another toolkit that lies in the window, as the hook does with lists of this
/// program's own.
bool ScrollHost(HWND window, WPARAM wParam) {
  POINT pointer;
  if (!GetCursorPos(&pointer)) return false;
  auto under = WindowFromPoint(pointer);
  wchar_t name[ClassNameSize] = L"";
  GetClassNameW(under, name, ClassNameSize);
  if (!std::wstring_view(name).starts_with(ControlHost) || !HasVerticalBar(under) ||
      !IsChild(window, under)) {
    return false;
  }
  auto distance = static_cast<short>((HIWORD)(static_cast<std::uint32_t>(wParam)));
  SendMessageW(under, WM_VSCROLL, distance > 0 ? SB_LINEUP : SB_LINEDOWN, 0);
  return true;
}

LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto found = Procedures().find(window);
  if (found == Procedures().end()) return DefWindowProcW(window, message, wParam, lParam);
  auto previous = found->second;
  if (message == WM_MOUSEWHEEL) {
    try {
      auto distance = static_cast<short>((HIWORD)(static_cast<std::uint32_t>(wParam)));
      auto keys = (LOWORD)(static_cast<std::uint32_t>(wParam));
      auto* hooked = wxFindWinFromHandle(window);
      bool isPlain = (keys & (MK_CONTROL | MK_SHIFT)) == 0;
      if (isPlain && hooked && ScrollUnderPointer(hooked, distance, WHEEL_DELTA)) return 0;
      if (ScrollHost(window, wParam)) return 0;
    } catch (...) {
      // A window procedure never raises; the wheel has its ordinary effect.
    }
  }
  if (message == WM_NCDESTROY) {
    SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(previous));
    Procedures().erase(window);
  }
  return CallWindowProcW(previous, window, message, wParam, lParam);
}

}  // namespace

bool HaveScrollBar(const wxWindow* window) {
  return window && HasVerticalBar(window->GetHWND());
}

void ReplaceWindowProcedure(wxWindow* window) {
  auto handle = window->GetHWND();
  auto previous = SetWindowLongPtrW(handle, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&WindowProc));
  if (previous) Procedures()[handle] = reinterpret_cast<WNDPROC>(previous);
}

void RestoreWindowProcedure(wxWindow* window) {
  auto found = Procedures().find(window->GetHWND());
  if (found == Procedures().end()) return;
  SetWindowLongPtrW(found->first, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(found->second));
  Procedures().erase(found);
}

}  // namespace mindloft::platform
