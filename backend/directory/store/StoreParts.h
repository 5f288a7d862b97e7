#pragma once

#include "backend/directory/session/Rights.h"
#include "backend/directory/sqlite/Database.h"
#include "backend/directory/store/Journal.h"

namespace mindloft {

/// What every store works with. Owned by the directory, which outlives its stores.
///
/// The stores' changes run within the caller's write transaction: rights first, then the version, the texts,
/// the rows, the journal.
struct StoreParts {
  sqlite::Database& database;
  Journal& journal;
  Rights& rights;
};

}  // namespace mindloft
