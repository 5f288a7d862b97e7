#pragma once

#include "backend/directory/sqlite/Database.h"

namespace mindloft {

/// Whether there is an enabled user who can log in and may manage users: without one nobody could ever be let
/// in again.
bool HasUserManager(sqlite::Database& database);

/// Throws LastUserManager when there is none; called within the transaction after each change that could take
/// the last one away.
void RequireUserManager(sqlite::Database& database);

}  // namespace mindloft
