#pragma once

#include <filesystem>
#include <memory>

#include "backend/directory/sqlite/Database.h"

namespace mindloft {

/// Opens an existing directory file of the present or an older schema and looks whether it can be read and
/// written; nothing in it changes. Throws DirectoryNotFound, DirectoryForeign, DirectoryDamaged,
/// DirectoryNewer, DirectoryReadOnly; the file is as it was then, and nothing lies beside it that was not
/// there before.
std::unique_ptr<sqlite::Database> OpenDirectoryFile(const std::filesystem::path& file);

/// Makes a new empty SQLite file marked as a directory, for its owner alone, without journal beside it: for a
/// file that is not in its final place yet.
std::unique_ptr<sqlite::Database> CreateDirectoryFile(const std::filesystem::path& file);

/// What every connection to a directory is set to.
void ConfigureConnection(sqlite::Database& database);

}  // namespace mindloft
