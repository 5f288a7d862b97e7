#pragma once

#include <string>
#include <vector>

#include "backend/directory/SqliteDirectory.h"
#include "backend/directory/index/UserIndex.h"
#include "backend/directory/sqlite/Database.h"

namespace mindloft {

/// What is wrong with the open directory, in words. Empty: all is well.
std::vector<std::string> CheckDirectory(sqlite::Database& database, UserIndex& index);

DirectoryInfo CountObjects(sqlite::Database& database);

}  // namespace mindloft
