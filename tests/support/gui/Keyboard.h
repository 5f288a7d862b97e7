#pragma once

class wxWindow;

namespace mindloft::test {

/// Sends one key press to a control as the toolkit does: first to the form's key hook, then as key down and
/// character to the control. Returns whether a handler took it; what the native control would do with it is
/// left to the caller.
bool SendKey(wxWindow& control, int keyCode, int modifiers = 0);

}  // namespace mindloft::test
