#pragma once

#include <wx/event.h>
#include <wx/mousestate.h>

namespace mindloft {

// Mouse buttons as the controls tell them to their forms.
namespace MouseButton {
inline constexpr int Left = 1;
inline constexpr int Right = 2;
inline constexpr int Middle = 4;
}  // namespace MouseButton

/// The button that was pressed or released.
int ButtonOf(const wxMouseEvent& event);

/// The sum of those that are down.
int HeldButtons(const wxMouseState& state);

}  // namespace mindloft
