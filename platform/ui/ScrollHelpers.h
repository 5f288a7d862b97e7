#pragma once

#include <wx/colour.h>
#include <wx/string.h>

#include <cstdint>
#include <functional>
#include <vector>

#include "platform/ui/WindowHelpers.h"

class wxWindow;

namespace mindloft::platform {

/// Whether the window shows a vertical scroll bar; null shows none.
bool HasScrollBar(const wxWindow* window);

/// Scrolls so that `position` (in the scroll bar's own units, from 0) is at the top; a position past either
/// end becomes that end.
void ScrollToPos(wxWindow* window, int position);

/// Scrolls up (negative) or down by lines of the window's content.
void ScrollToLine(wxWindow* window, int lines);

/// Every window inside `parent`, at any depth.
std::vector<WindowHandle> EnumAllWindows(WindowHandle parent);

/// Whether the window is of the class: what `GetWndByType` asks of each.
bool EnumProc(WindowHandle window, const wxString& className);

/// The first window inside `parent`, at any depth, whose class has this name; 0 when there is none.
WindowHandle GetWndByType(WindowHandle parent, const wxString& className);

/// A colour number as forms keep it: 0x00BBGGRR, or 0x800000nn for the system's colour nn.
wxColour TranslateColor(std::uint32_t color);

/// `percent` (0 to 100) of `front` over `back`.
wxColour BlendColor(const wxColour& front, const wxColour& back, int percent);

}  // namespace mindloft::platform
