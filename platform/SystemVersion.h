#pragma once

#include <string>

namespace mindloft::platform {

// The operating system's version, for display only.

/// Its name: "Windows 11", "Debian GNU/Linux 12 (bookworm)".
std::string GetSystemName();

/// The name with the exact version: "Windows 11 (10.0.22631)", "Debian GNU/Linux 12 (bookworm)
/// (Linux 6.1.0)".
std::string OSInfo();

}  // namespace mindloft::platform
