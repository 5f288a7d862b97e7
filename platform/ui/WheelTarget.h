#pragma once

class wxWindow;

namespace mindloft::platform {

/// The list or tree of `window` under the pointer that has a vertical scroll bar, or null.
wxWindow* WheelTarget(const wxWindow* window);

/// Scrolls what is under the pointer by the wheel's distance, one line per notch (`delta`); parts of a notch
/// add up. False when there is nothing that this hook scrolls, and the wheel has its ordinary effect.
bool ScrollUnderPointer(const wxWindow* hooked, int rotation, int delta);

// The system's share of the hook: replacing the window's own procedure where there is one.
void ReplaceWindowProcedure(wxWindow* window);
void RestoreWindowProcedure(wxWindow* window);

}  // namespace mindloft::platform
