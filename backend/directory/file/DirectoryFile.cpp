#include "backend/directory/file/DirectoryFile.h"

#include <chrono>
#include <string>
#include <vector>

#include "backend/directory/file/HeaderCheck.h"
#include "backend/directory/file/Schema.h"

namespace mindloft {
namespace {

/// How long a change waits for those of other connections.
constexpr std::chrono::milliseconds kPatience(5000);

/// Reads the first page of every table: what is broken there, or missing, shows before anything is changed.
void ProbeTables(sqlite::Database& database) {
  std::vector<std::string> tables;
  bool users = false;
  {
    auto row = database.Prepare("SELECT name FROM sqlite_schema WHERE type = 'table' AND rootpage > 0");
    while (row->Step()) tables.push_back(row->Text(0));
  }
  for (const auto& table : tables) {
    users = users || table == "user";
    std::string name;
    for (char c : table) name += c == '"' ? std::string("\"\"") : std::string(1, c);
    sqlite::Statement(database.Handle(), "SELECT * FROM \"" + name + "\" LIMIT 1").Step();
  }
  if (!users) throw Error(ErrorNumber::DirectoryDamaged, "the tables are missing");
}

/// The engine's failures while a file is being opened, as what they mean then.
[[noreturn]] void RethrowOpenFailure(const Error& error) {
  switch (error.Number()) {
    case ErrorNumber::PathAccess:
      // The file itself has been read: the log beside it cannot be made.
      throw Error(ErrorNumber::DirectoryReadOnly, error.Description());
    case ErrorNumber::DirectoryForeign:
      // It has the mark of a directory, yet the engine cannot make sense of it.
      throw Error(ErrorNumber::DirectoryDamaged, error.Description());
    default:
      throw error;
  }
}

}  // namespace

void ConfigureConnection(sqlite::Database& database) {
  database.WaitWhileBusy(kPatience);
  // A file may come from anywhere: its schema must not run functions with side effects.
  sqlite3_db_config(database.Handle(), SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
  sqlite3_db_config(database.Handle(), SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
  // The cache is counted in KiB when negative.
  database.Execute(
      "PRAGMA foreign_keys = ON; PRAGMA cell_size_check = ON; PRAGMA cache_size = -4096; "
      "PRAGMA mmap_size = 0; PRAGMA temp_store = MEMORY");
}

std::unique_ptr<sqlite::Database> OpenDirectoryFile(const std::filesystem::path& file) {
  CheckHeader(file);
  try {
    auto database = std::make_unique<sqlite::Database>(file, SQLITE_OPEN_READWRITE);
    // The engine reads a file that it cannot write; the log that it makes for that would stay beside it.
    if (sqlite3_db_readonly(database->Handle(), "main") != 0) {
      throw Error(ErrorNumber::DirectoryReadOnly, "the file cannot be written");
    }
    ConfigureConnection(*database);
    {
      sqlite::Snapshot snapshot(*database);
      // The log may hold a newer schema than the file's header.
      int schema = SchemaOf(*database);
      if (schema > CurrentSchema()) {
        throw Error(ErrorNumber::DirectoryNewer, "schema " + std::to_string(schema));
      }
      ProbeTables(*database);
    }
    database->Execute("PRAGMA journal_mode = WAL; PRAGMA synchronous = FULL");
    return database;
  } catch (const Error& error) {
    RethrowOpenFailure(error);
  }
}

std::unique_ptr<sqlite::Database> CreateDirectoryFile(const std::filesystem::path& file) {
  auto database = std::make_unique<sqlite::Database>(file, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
  std::error_code ignored;
  std::filesystem::permissions(file, std::filesystem::perms::owner_read | std::filesystem::perms::owner_write,
                               ignored);
  database->Execute(("PRAGMA page_size = " + std::to_string(kPageSize)).c_str());
  ConfigureConnection(*database);
  database->Execute("PRAGMA journal_mode = MEMORY; PRAGMA synchronous = FULL");
  database->Execute(("PRAGMA application_id = " + std::to_string(kApplicationId)).c_str());
  return database;
}

}  // namespace mindloft
