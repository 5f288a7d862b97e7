#pragma once

#include <filesystem>

namespace mindloft::platform {

/// Gives a complete file its final name in one step and waits until the name is on the disk. False when there
/// is a file of that name already and `replace` is not set. Throws PathAccess.
bool DurableRename(const std::filesystem::path& from, const std::filesystem::path& to, bool replace);

}  // namespace mindloft::platform
