#pragma once

#include <string>

#include "backend/directory/sqlite/Database.h"

namespace mindloft {

/// Fills a new directory: the built-in roles, some styles, and the first administrator, who holds the role
/// with all system privileges. Within the caller's transaction; throws for a bad name or password.
void AddStartingContent(sqlite::Database& database, const std::string& name, const std::string& password);

}  // namespace mindloft
