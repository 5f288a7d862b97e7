#include "backend/directory/file/Schema.h"

#include <string>

#include "backend/directory/file/StartingStyles.h"
#include "backend/directory/index/UserIndex.h"

namespace mindloft {
namespace {

// Identifiers are never reused (AUTOINCREMENT): the journal names objects by them, and the user index counts
// on them being dense. The name keys are the folded names; they make names unique without regard to case.
constexpr const char* kTables = R"sql(
CREATE TABLE user (
  id INTEGER PRIMARY KEY AUTOINCREMENT,
  version INTEGER NOT NULL,
  name TEXT NOT NULL,
  name_key TEXT NOT NULL UNIQUE,
  full_name TEXT NOT NULL,
  department TEXT NOT NULL,
  email TEXT NOT NULL,
  telephone TEXT NOT NULL,
  description TEXT NOT NULL,
  enabled INTEGER NOT NULL,
  password TEXT NOT NULL,
  last_login INTEGER NOT NULL
) STRICT;
CREATE TABLE role (
  id INTEGER PRIMARY KEY AUTOINCREMENT,
  version INTEGER NOT NULL,
  name TEXT NOT NULL,
  name_key TEXT NOT NULL UNIQUE,
  built_in INTEGER NOT NULL,
  privileges INTEGER NOT NULL
) STRICT;
CREATE TABLE role_member (
  role INTEGER NOT NULL REFERENCES role,
  user INTEGER NOT NULL REFERENCES user,
  PRIMARY KEY (role, user)
) STRICT, WITHOUT ROWID;
CREATE INDEX role_member_user ON role_member (user);
CREATE TABLE style (
  id INTEGER PRIMARY KEY AUTOINCREMENT,
  version INTEGER NOT NULL,
  name TEXT NOT NULL,
  name_key TEXT NOT NULL UNIQUE,
  definition TEXT NOT NULL
) STRICT;
CREATE TABLE domain (
  id INTEGER PRIMARY KEY AUTOINCREMENT,
  version INTEGER NOT NULL,
  name TEXT NOT NULL,
  name_key TEXT NOT NULL UNIQUE,
  description TEXT NOT NULL,
  style INTEGER REFERENCES style,
  disabled INTEGER NOT NULL
) STRICT;
CREATE INDEX domain_style ON domain (style);
CREATE TABLE domain_user (
  domain INTEGER NOT NULL REFERENCES domain,
  user INTEGER NOT NULL REFERENCES user,
  PRIMARY KEY (domain, user)
) STRICT, WITHOUT ROWID;
CREATE INDEX domain_user_user ON domain_user (user);
CREATE TABLE grp (
  id INTEGER PRIMARY KEY AUTOINCREMENT,
  version INTEGER NOT NULL,
  domain INTEGER NOT NULL REFERENCES domain,
  kind INTEGER NOT NULL,
  built_in INTEGER NOT NULL,
  editable INTEGER NOT NULL,
  privileges INTEGER NOT NULL,
  name TEXT NOT NULL,
  name_key TEXT NOT NULL,
  description TEXT NOT NULL,
  UNIQUE (domain, name_key)
) STRICT;
CREATE UNIQUE INDEX grp_administrators ON grp (domain) WHERE kind = 5;
CREATE TABLE group_member (
  grp INTEGER NOT NULL REFERENCES grp,
  user INTEGER NOT NULL REFERENCES user,
  PRIMARY KEY (grp, user)
) STRICT, WITHOUT ROWID;
CREATE INDEX group_member_user ON group_member (user);
CREATE TABLE user_configuration (
  user INTEGER PRIMARY KEY REFERENCES user,
  version INTEGER NOT NULL,
  xml TEXT NOT NULL
) STRICT;
CREATE TABLE journal (
  id INTEGER PRIMARY KEY AUTOINCREMENT,
  time INTEGER NOT NULL,
  who TEXT NOT NULL,
  action TEXT NOT NULL,
  kind TEXT NOT NULL,
  object INTEGER NOT NULL,
  name TEXT NOT NULL,
  before TEXT NOT NULL,
  after TEXT NOT NULL
) STRICT;
CREATE INDEX journal_object ON journal (object, kind);
)sql";

// The orders and search texts of the users: one order for all languages.
constexpr const char* kFirstIndex = R"sql(
CREATE TABLE user_text(chunk INTEGER PRIMARY KEY, texts BLOB NOT NULL);
CREATE TABLE user_order(ord INTEGER PRIMARY KEY, blocks BLOB NOT NULL);
CREATE TABLE user_order_block(id INTEGER PRIMARY KEY, users BLOB NOT NULL);
)sql";

// The last column: who reads the others does not go through the pages of a long document.
void AddDomainDocument(sqlite::Database& database) {
  database.Execute("ALTER TABLE domain ADD COLUMN document TEXT NOT NULL DEFAULT ''");
}

void CreateFirstSchema(sqlite::Database& database) {
  database.Execute(kTables);
  database.Execute(kFirstIndex);
}

constexpr Migration kMigrations[] = {
    {1, CreateFirstSchema}, {2, RenewStartingStyles}, {3, UserIndex::UpgradeTables}, {4, AddDomainDocument}};

}  // namespace

std::span<const Migration> Migrations() {
  return kMigrations;
}

int CurrentSchema() {
  return Migrations().back().to;
}

int SchemaOf(sqlite::Database& database) {
  sqlite::Statement version(database.Handle(), "PRAGMA user_version");
  version.Step();
  return static_cast<int>(version.Int(0));
}

void Migrate(sqlite::Database& database, std::span<const Migration> migrations) {
  if (SchemaOf(database) >= migrations.back().to) return;
  sqlite::Transaction transaction(database);
  // Read again under the write lock: another process may have been faster.
  int version = SchemaOf(database);
  for (const auto& migration : migrations) {
    if (migration.to <= version) continue;
    migration.run(database);
    database.Execute(("PRAGMA user_version = " + std::to_string(migration.to)).c_str());
  }
  transaction.Commit();
}

}  // namespace mindloft
