#pragma once

#include <filesystem>

namespace mindloft {

/// Looks at the first bytes of a file without the database engine, which would already leave its traces.
/// Throws DirectoryNotFound, DirectoryForeign (no SQLite file, or not marked as a directory), DirectoryNewer,
/// DirectoryDamaged (shorter than it says), PathAccess (cannot be read).
void CheckHeader(const std::filesystem::path& file);

}  // namespace mindloft
