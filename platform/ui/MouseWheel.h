#pragma once

#include <cstdint>

class wxWindow;

namespace mindloft::platform {

/// From here on the wheel over a list or tree of this window scrolls that list or tree by one line per notch,
/// also when another control has the focus. Every `Hook2` needs its `Unhook2`, unless the window is destroyed
/// first.
void Hook2(wxWindow* window);
void Unhook2(wxWindow* window);
bool IsHooked(const wxWindow* window);

/// Whether the window shows a vertical scroll bar.
bool HaveScrollBar(const wxWindow* window);

// The low and the high 16 bits of a message parameter. In parentheses because a system's header may have
// macros of the same names and meaning.
constexpr std::uint16_t(LOWORD)(std::uint32_t value) {
  return static_cast<std::uint16_t>(value & 0xFFFF);
}
constexpr std::uint16_t(HIWORD)(std::uint32_t value) {
  return static_cast<std::uint16_t>(value >> 16);
}

}  // namespace mindloft::platform
