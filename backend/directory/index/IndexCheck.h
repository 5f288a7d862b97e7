#pragma once

#include <string>
#include <vector>

#include "backend/directory/sqlite/Database.h"

namespace mindloft {

/// What is wrong with the stored index compared with the user table, in words; empty when they agree. Call it
/// in a Snapshot.
std::vector<std::string> CheckIndex(sqlite::Database& database);

}  // namespace mindloft
