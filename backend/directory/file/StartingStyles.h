#pragma once

#include "backend/directory/sqlite/Database.h"

namespace mindloft {

/// Gives a new directory the styles to begin with. Their fonts are there on every computer.
void AddStartingStyles(sqlite::Database& database);

/// Brings a directory's styles up to what a new one has: the first set's, where nobody has changed them, name
/// fonts that only some computers have; a directory without styles gets all. Each change is journalled.
void RenewStartingStyles(sqlite::Database& database);

}  // namespace mindloft
