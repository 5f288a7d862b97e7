#pragma once

#include <wx/string.h>

#include <cstdint>
#include <vector>

class wxWindow;

namespace mindloft::platform {

/// A window of the system: on Windows its HWND, elsewhere the address of the toolkit's window. 0 is none.
using WindowHandle = std::uintptr_t;

WindowHandle HandleOf(const wxWindow* window);

/// The name of the window's class as `FindWindowLike` compares it.
wxString ClassNameOf(WindowHandle window);

/// Appends to `handles` every window from `start` downwards, children before their parent, whose title and
/// class match the patterns ("*" for any text, "?" for one character); returns how many it appended. A start
/// of 0 is the desktop: on Windows the windows of all programs, elsewhere this program's own.
int FindWindowLike(std::vector<WindowHandle>& handles, WindowHandle start, const wxString& titlePattern,
                   const wxString& classPattern);

/// Restores a minimised window, and brings the window to the front.
void ShowMindloft(WindowHandle window);

/// Shows (`ShowMindloft`) every visible window whose title ends with the caption and whose class matches. An
/// empty caption would be the end of every title, so it shows none.
void ActiveMindloft(const wxString& caption, const wxString& className);

// What each system does for these.
bool IsWindowShown(WindowHandle window);

}  // namespace mindloft::platform
