#pragma once

#include <filesystem>
#include <string>

namespace mindloft::platform {

/// The folder of the running program's file.
std::filesystem::path ProgramFolder();
/// "resources" beside the program, or ../share/mindloft/resources of an installed one.
std::filesystem::path ResourceFolder();
/// The directory file of this computer: %ProgramData%\Mindloft\mindloft.directory; elsewhere
/// $XDG_DATA_HOME/mindloft/mindloft.directory (~/.local/share). The folder need not exist.
std::filesystem::path DefaultDirectoryFile();
/// The user's settings: $XDG_CONFIG_HOME/mindloft (~/.config); %APPDATA%\Mindloft.
std::filesystem::path ConfigFolder();
/// $XDG_STATE_HOME/mindloft (~/.local/state); %LOCALAPPDATA%\Mindloft\Log.
std::filesystem::path LogFolder();
/// A place that only this user reads, gone after logout: $XDG_RUNTIME_DIR, else a folder of the user's own in
/// the temporary folder, made with mode 0700 and refused when it is somebody else's.
std::filesystem::path RuntimeFolder();
/// UTF-8 to path and back, on every platform.
std::filesystem::path PathFromUtf8(const std::string& utf8);
std::string PathToUtf8(const std::filesystem::path& path);

}  // namespace mindloft::platform
