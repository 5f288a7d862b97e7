#include "platform/ui/TextFrame.h"

#include <windows.h>
#include <uxtheme.h>
#include <vssym32.h>
#include <wx/dc.h>
#include <wx/settings.h>
#include <wx/window.h>

#include <algorithm>
#include <memory>
#include <type_traits>

namespace mindloft::platform {
namespace {

struct CloseTheme {
  void operator()(HTHEME theme) const { CloseThemeData(theme); }
};
using Theme = std::unique_ptr<std::remove_pointer_t<HTHEME>, CloseTheme>;

/// The part of the theme that draws a box's frame, and its state.
struct Part {
  int part = EP_EDITBORDER_NOSCROLL;
  int state = EPSN_NORMAL;
};

Part PartOf(HTHEME theme, TextFrameState state) {
  if (IsThemePartDefined(theme, EP_EDITBORDER_NOSCROLL, 0)) {
    if (!state.enabled) return {EP_EDITBORDER_NOSCROLL, EPSN_DISABLED};
    return {EP_EDITBORDER_NOSCROLL, state.focused ? EPSN_FOCUSED : EPSN_NORMAL};
  }
  // A theme of before Vista.
  if (!state.enabled) return {EP_EDITTEXT, ETS_DISABLED};
  return {EP_EDITTEXT, state.focused ? ETS_FOCUSED : ETS_NORMAL};
}

/// Draws the frame and returns what is inside it.
RECT DrawFrame(HWND window, HDC dc, RECT rect, TextFrameState state) {
  const Theme theme(OpenThemeData(window, L"EDIT"));
  if (!theme) {
    DrawEdge(dc, &rect, EDGE_SUNKEN, BF_RECT | BF_ADJUST);
    return rect;
  }
  const auto [part, partState] = PartOf(theme.get(), state);
  if (IsThemeBackgroundPartiallyTransparent(theme.get(), part, partState))
    DrawThemeParentBackground(window, dc, &rect);
  DrawThemeBackground(theme.get(), dc, part, partState, &rect, nullptr);
  // The theme's contents may reach below its border.
  RECT content = rect;
  GetThemeBackgroundContentRect(theme.get(), dc, part, partState, &rect, &content);
  const int line = std::max(1, GetDeviceCaps(dc, LOGPIXELSX) / USER_DEFAULT_SCREEN_DPI);
  RECT inside = rect;
  InflateRect(&inside, -line, -line);
  IntersectRect(&inside, &inside, &content);
  return inside;
}

}  // namespace

void DrawTextFrame(wxWindow& window, wxDC& dc, const wxRect& rect, TextFrameState state,
                   const wxColour& background) {
  const HDC handle = static_cast<HDC>(dc.GetHDC());
  const RECT inside =
      DrawFrame(window.GetHandle(), handle,
                {rect.GetLeft(), rect.GetTop(), rect.GetRight() + 1, rect.GetBottom() + 1}, state);
  const wxColour fill = background.IsOk() ? background
                                          : wxSystemSettings::GetColour(state.enabled ? wxSYS_COLOUR_WINDOW
                                                                                      : wxSYS_COLOUR_BTNFACE);
  const HBRUSH brush = CreateSolidBrush(RGB(fill.Red(), fill.Green(), fill.Blue()));
  FillRect(handle, &inside, brush);
  DeleteObject(brush);
}

}  // namespace mindloft::platform
