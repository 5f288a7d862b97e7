#include "bench/FillBench.h"

#include <memory>
#include <string>
#include <vector>

#include "backend/directory/DirectoryLoader.h"
#include "backend/directory/SqliteDirectory.h"
#include "backend/directory/file/DirectoryFile.h"
#include "backend/directory/file/Schema.h"
#include "bench/SampleRows.h"

namespace mindloft::bench {
namespace {

constexpr int kDomains = 4;
constexpr int kGroupsPerDomain = 10;

using PlainStatement = std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_finalize)>;

PlainStatement Prepare(sqlite3* database, const std::string& sql) {
  sqlite3_stmt* statement = nullptr;
  int code = sqlite3_prepare_v2(database, sql.c_str(), -1, &statement, nullptr);
  if (code != SQLITE_OK) sqlite::ThrowLastError(database, code, sql);
  return {statement, &sqlite3_finalize};
}

/// Reads all rows of the table and inserts them into the target when there is one.
void CopyTable(sqlite3* source, sqlite3* target, const std::string& table) {
  auto select = Prepare(source, "SELECT * FROM " + table);
  const int columns = sqlite3_column_count(select.get());
  std::string places = "?";
  for (int i = 1; i < columns; ++i) places += ",?";
  // What every new directory holds is there already.
  auto put = Prepare(target ? target : source, "INSERT OR IGNORE INTO " + table + " VALUES(" + places + ")");
  while (sqlite3_step(select.get()) == SQLITE_ROW) {
    for (int i = 0; i < columns; ++i) {
      sqlite3_bind_value(put.get(), i + 1, sqlite3_column_value(select.get(), i));
    }
    if (!target) continue;
    int code = sqlite3_step(put.get());
    if (code != SQLITE_DONE) sqlite::ThrowLastError(target, code, table);
    sqlite3_reset(put.get());
  }
}

/// Copies all rows as a plain program of the database library would: one prepared INSERT for each table, one
/// transaction. Returns the milliseconds of inserting alone: reading is measured by itself and taken off.
double InsertPlainly(const std::filesystem::path& from, const std::filesystem::path& to) {
  sqlite::Database source(from, SQLITE_OPEN_READONLY);
  sqlite::Database target(to, SQLITE_OPEN_READWRITE);
  std::vector<std::string> tables;
  {
    sqlite::Statement names(source.Handle(),
                            "SELECT name FROM sqlite_schema WHERE type='table' AND name NOT LIKE 'sqlite_%'");
    while (names.Step()) tables.push_back(names.Text(0));
  }
  auto copy = [&](bool insert) {
    if (insert) target.Execute("BEGIN");
    for (const auto& table : tables) CopyTable(source.Handle(), insert ? target.Handle() : nullptr, table);
    if (insert) target.Execute("COMMIT");
  };
  double reading = Milliseconds([&] { copy(false); });
  return Milliseconds([&] { copy(true); }) - reading;
}

}  // namespace

void MakeEmpty(const std::filesystem::path& file) {
  std::filesystem::remove(file);
  auto database = CreateDirectoryFile(file);
  Migrate(*database, Migrations());
  database->Execute("PRAGMA journal_mode=WAL");
}

void Fill(const std::filesystem::path& file, std::uint32_t users) {
  DirectoryLoader loader(file);
  std::vector<ObjectId> domains, groups;
  for (int i = 0; i < kDomains; ++i) {
    DomainRecord domain;
    domain.name = "Domain " + std::to_string(i);
    domains.push_back(loader.AddDomain(domain));
    for (int j = 0; j < kGroupsPerDomain; ++j) {
      GroupRecord group;
      group.domain = domains.back();
      group.name = "Group " + std::to_string(j);
      groups.push_back(loader.AddGroup(group));
    }
  }
  for (std::uint32_t number = 1; number <= users; ++number) {
    ObjectId user = loader.AddUser(SampleUser(number));
    auto group = number * 7919U % groups.size();
    loader.AddDomainUser(domains[group / kGroupsPerDomain], user);
    loader.AddGroupMember(groups[group], user);
  }
  loader.Finish();
}

void MeasureFilling(const std::filesystem::path& folder, std::uint32_t users, Report& report) {
  const auto loaded = folder / "loaded.mdir", plain = folder / "plain.mdir";
  SqliteDirectory::Create(loaded, {kAdministrator, kPassword}, true);
  MakeEmpty(plain);
  double making = Milliseconds([&] {
    for (std::uint32_t number = 1; number <= users; ++number) SampleUser(number);
  });
  double loading = Milliseconds([&] { Fill(loaded, users); }) - making;
  double inserting = InsertPlainly(loaded, plain);
  report.Note("filling: loader", loading / 1000, "s");
  report.Note("filling: plain inserts of the same rows", inserting / 1000, "s");
  report.AtLeast("filling: rate of the loader to plain inserts", inserting / loading, 0.5, "");
  std::filesystem::remove(plain);
}

}  // namespace mindloft::bench
