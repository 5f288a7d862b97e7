#pragma once

#include <span>

#include "backend/directory/sqlite/Database.h"

namespace mindloft {

/// Marks a SQLite file as a directory: "Mdir" (the file header's application id).
inline constexpr std::int64_t kApplicationId = 0x4d646972;

/// Bytes of a page of a new file. Larger than the engine's default: the search tables hold long rows.
inline constexpr int kPageSize = 8192;

/// One step of the schema's history: leads from version `to - 1` to version `to`.
struct Migration {
  int to;
  void (*run)(sqlite::Database& database);
};

/// All steps in order, from an empty file (version 0) to the present schema.
std::span<const Migration> Migrations();

/// The schema version of this program.
int CurrentSchema();

/// The schema version of the file (its user_version).
int SchemaOf(sqlite::Database& database);

/// Runs the steps that the file lacks in one transaction; nothing happens when there are none. A file that
/// another process brings up to date meanwhile is left to it.
void Migrate(sqlite::Database& database, std::span<const Migration> migrations);

}  // namespace mindloft
