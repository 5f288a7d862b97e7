#pragma once

#include <vector>

#include "backend/directory/Changes.h"
#include "backend/directory/Query.h"
#include "backend/directory/sqlite/Database.h"

namespace mindloft {

/// Those of the objects that belong to the collection, with their versions. TypeMismatch for the journal,
/// whose rows have none.
std::vector<ObjectVersion> CollectionVersions(sqlite::Database& database, Collection collection,
                                              ObjectId scope, const std::vector<ObjectId>& objects);

}  // namespace mindloft
