#pragma once

namespace mindloft::platform {

/// Registers the system's extended combo-box classes (`InitCommonControlsEx` with size 8 and class flag
/// 0x200). True when they are there; nothing to do where the system has no such classes.
bool InitExtendedComboBoxes();

}  // namespace mindloft::platform
