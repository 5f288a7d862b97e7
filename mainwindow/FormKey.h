#pragma once

namespace mindloft {

/// Where the main window's position and arrangement are kept, in the user's part of the registry.
inline constexpr const char* kFormKey = "software\\Ordwell\\Mindloft\\Resource\\FormPos\\frmSysAdmin";

}  // namespace mindloft
