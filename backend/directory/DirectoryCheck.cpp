#include "backend/directory/DirectoryCheck.h"

#include "backend/directory/FoldedText.h"
#include "backend/directory/file/Schema.h"
#include "backend/directory/store/GuardRails.h"

namespace mindloft {
namespace {

void CheckIntegrity(sqlite::Database& database, std::vector<std::string>& wrong) {
  auto row = database.Prepare("PRAGMA integrity_check");
  while (row->Step()) {
    if (row->TextView(0) != "ok") wrong.push_back("integrity: " + row->Text(0));
  }
}

void CheckReferences(sqlite::Database& database, std::vector<std::string>& wrong) {
  auto row = database.Prepare("PRAGMA foreign_key_check");
  while (row->Step()) {
    wrong.push_back("reference: a row of \"" + row->Text(0) + "\" names a missing row of \"" + row->Text(2) +
                    '"');
  }
}

/// One line for each row of a query that looks for what must not be.
void CheckNone(sqlite::Database& database, const char* sql, const std::string& words,
               std::vector<std::string>& wrong) {
  auto row = database.Prepare(sql);
  while (row->Step()) wrong.push_back(words + row->Text(0));
}

void CheckGuardRails(sqlite::Database& database, std::vector<std::string>& wrong) {
  if (!HasUserManager(database)) wrong.push_back("no enabled user who can log in may manage users");
  CheckNone(database,
            "SELECT name FROM domain d WHERE NOT EXISTS "
            "(SELECT 1 FROM grp g WHERE g.domain = d.id AND g.kind = 5)",
            "no administrators group in domain ", wrong);
  CheckNone(database,
            "SELECT g.name || ': user ' || m.user FROM group_member m JOIN grp g ON g.id = m.grp "
            "WHERE NOT EXISTS (SELECT 1 FROM domain_user d WHERE d.domain = g.domain AND d.user = m.user)",
            "a member without access to the domain in group ", wrong);
}

void CheckNameKeys(sqlite::Database& database, std::vector<std::string>& wrong) {
  for (const char* table : {"user", "role", "domain", "grp", "style"}) {
    auto row = database.Prepare(std::string("SELECT id, name, name_key FROM ") + table);
    while (row->Step()) {
      if (FoldedText(row->TextView(1)) != row->TextView(2)) {
        wrong.push_back(std::string("name key: row ") + std::to_string(row->Int(0)) + " of \"" + table + '"');
      }
    }
  }
}

std::int64_t RowsOf(sqlite::Database& database, const char* table) {
  auto row = database.Prepare(std::string("SELECT count(*) FROM ") + table);
  row->Step();
  return row->Int(0);
}

}  // namespace

std::vector<std::string> CheckDirectory(sqlite::Database& database, UserIndex& index) {
  std::vector<std::string> wrong;
  try {
    sqlite::Snapshot snapshot(database);
    CheckIntegrity(database, wrong);
    if (!wrong.empty()) return wrong;  // what follows would only stumble over the same
    CheckReferences(database, wrong);
    CheckGuardRails(database, wrong);
    CheckNameKeys(database, wrong);
    for (auto& text : index.Check()) wrong.push_back("index: " + std::move(text));
  } catch (const Error& error) {
    if (error.Number() != ErrorNumber::DirectoryDamaged) throw;
    wrong.push_back("damaged: " + error.Description());
  }
  return wrong;
}

DirectoryInfo CountObjects(sqlite::Database& database) {
  sqlite::Snapshot snapshot(database);
  return {.schemaVersion = SchemaOf(database),
          .users = RowsOf(database, "user"),
          .roles = RowsOf(database, "role"),
          .domains = RowsOf(database, "domain"),
          .groups = RowsOf(database, "grp"),
          .groupMembers = RowsOf(database, "group_member"),
          .domainUsers = RowsOf(database, "domain_user"),
          .styles = RowsOf(database, "style"),
          .changes = RowsOf(database, "journal")};
}

}  // namespace mindloft
