#pragma once

#include <string>

namespace mindloft::platform {

// The operating system's version. The names are for display only.

/// Its name: "Windows 11", "Debian GNU/Linux 12 (bookworm)".
std::string GetSystemName();

/// The name with the exact version: "Windows 11 (10.0.22631)", "Debian GNU/Linux 12 (bookworm)
/// (Linux 6.1.0)".
std::string OSInfo();

/// Whether the system is one that can draw controls in visual styles: Windows from XP on, and any version
/// that is not recognised, for it is a later one. Elsewhere the toolkit always draws in its theme.
bool HasVisualStyles();

}  // namespace mindloft::platform
