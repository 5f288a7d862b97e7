#pragma once

#include <string>

#include "backend/directory/Records.h"
#include "backend/directory/sqlite/Database.h"

namespace mindloft {

/// The form of a name that is unique, when no other object has it. NameExists. `self` is the object that may
/// have it already; `domain` limits the search to the groups of one domain.
std::string FreeNameKey(sqlite::Database& database, const std::string& table, const std::string& name,
                        ObjectId self = 0, ObjectId domain = 0);

}  // namespace mindloft
