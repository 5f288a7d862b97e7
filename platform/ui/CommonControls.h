#pragma once

namespace mindloft::platform {

/// Registers the system's extended combo-box classes (`InitCommonControlsEx` with size 8 and class flag
/// 0x200). True when they are there; nothing to do where the system has no such classes.
bool InitExtendedComboBoxes();

/// What the console's own controls ask for when they are created: loads the system's shell library
/// ("shell32.dll"), which then stays, and calls `InitCommonControls`, so that their inner controls take the
/// system's visual style. Done once per process. True when the library is there; nothing to do on Linux,
/// where the toolkit draws every control in the desktop's theme.
bool UseSystemControls();

}  // namespace mindloft::platform
