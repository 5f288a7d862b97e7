#include "backend/directory/sqlite/Database.h"

#include <utility>

namespace mindloft::sqlite {
namespace {

ErrorNumber NumberOf(int code) {
  switch (code & 0xff) {
    case SQLITE_FULL:
      return ErrorNumber::DiskFull;
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return ErrorNumber::DirectoryBusy;
    case SQLITE_CORRUPT:
      return ErrorNumber::DirectoryDamaged;
    case SQLITE_NOTADB:
      return ErrorNumber::DirectoryForeign;
    case SQLITE_READONLY:
    case SQLITE_PERM:
      return ErrorNumber::DirectoryReadOnly;
    case SQLITE_CANTOPEN:
      return ErrorNumber::PathAccess;
    case SQLITE_NOMEM:
      return ErrorNumber::OutOfMemory;
    default:
      return ErrorNumber::Storage;
  }
}

}  // namespace

void ThrowLastError(sqlite3* database, int code, std::string_view doing) {
  int extended = database ? sqlite3_extended_errcode(database) : code;
  std::string text = database ? sqlite3_errmsg(database) : sqlite3_errstr(code);
  throw Error(NumberOf(code), text + " (" + std::to_string(extended) + ");" + std::string(doing));
}

Statement::Statement(sqlite3* database, std::string_view sql) : database_(database) {
  sqlite3_stmt* statement = nullptr;
  int code = sqlite3_prepare_v3(database, sql.data(), static_cast<int>(sql.size()), SQLITE_PREPARE_PERSISTENT,
                                &statement, nullptr);
  if (code != SQLITE_OK) ThrowLastError(database, code, sql);
  statement_.reset(statement);
}

Statement& Statement::Bind(int index, std::int64_t value) {
  sqlite3_bind_int64(statement_.get(), index + 1, value);
  return *this;
}

Statement& Statement::Bind(int index, std::string_view text) {
  // A null pointer would bind NULL.
  sqlite3_bind_text64(statement_.get(), index + 1, text.data() ? text.data() : "", text.size(),
                      SQLITE_TRANSIENT, SQLITE_UTF8);
  return *this;
}

Statement& Statement::BindBlob(int index, std::string_view blob) {
  sqlite3_bind_blob64(statement_.get(), index + 1, blob.data() ? blob.data() : "", blob.size(),
                      SQLITE_TRANSIENT);
  return *this;
}

Statement& Statement::BindNull(int index) {
  sqlite3_bind_null(statement_.get(), index + 1);
  return *this;
}

bool Statement::Step() {
  int code = sqlite3_step(statement_.get());
  if (code == SQLITE_ROW) return true;
  if (code == SQLITE_DONE) return false;
  std::string_view sql = sqlite3_sql(statement_.get());
  try {
    ThrowLastError(database_, code, sql);
  } catch (...) {
    sqlite3_reset(statement_.get());
    throw;
  }
}

void Statement::Run() {
  while (Step()) {
  }
  Reset();
}

void Statement::Reset() {
  sqlite3_reset(statement_.get());
  sqlite3_clear_bindings(statement_.get());
}

std::string_view Statement::TextView(int column) const {
  auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement_.get(), column));
  return text ? std::string_view(text,
                                 static_cast<std::size_t>(sqlite3_column_bytes(statement_.get(), column)))
              : std::string_view();
}

std::string_view Statement::BlobView(int column) const {
  auto* blob = static_cast<const char*>(sqlite3_column_blob(statement_.get(), column));
  return blob ? std::string_view(blob,
                                 static_cast<std::size_t>(sqlite3_column_bytes(statement_.get(), column)))
              : std::string_view();
}

Database::Database(const std::filesystem::path& file, int flags) {
  sqlite3* database = nullptr;
  auto name = file.u8string();
  int code = sqlite3_open_v2(reinterpret_cast<const char*>(name.c_str()), &database, flags, nullptr);
  database_.reset(database);
  if (code != SQLITE_OK) ThrowLastError(database, code, "open");
  sqlite3_extended_result_codes(database, 1);
}

void Database::WaitWhileBusy(std::chrono::milliseconds patience) {
  busyWait_ = std::make_unique<BusyWait>(database_.get(), patience);
}

void Database::Execute(const char* sql) {
  int code = sqlite3_exec(database_.get(), sql, nullptr, nullptr, nullptr);
  if (code != SQLITE_OK) ThrowLastError(database_.get(), code, sql);
}

CachedStatement Database::Prepare(std::string_view sql) {
  auto found = statements_.find(sql);
  if (found == statements_.end()) {
    found = statements_.emplace(std::string(sql), std::make_unique<Statement>(database_.get(), sql)).first;
  }
  return CachedStatement(*found->second);
}

FileState Database::State() {
  auto version = Prepare("PRAGMA data_version");
  version->Step();
  return {version->Int(0), sqlite3_total_changes64(database_.get()), ownTransactions_};
}

Transaction::Transaction(Database& database) : database_(database) {
  if (!sqlite3_get_autocommit(database_.Handle())) {
    throw Error(ErrorNumber::DirectoryBusy, "a change is under way");
  }
  database_.Execute("BEGIN IMMEDIATE");
}

Transaction::~Transaction() {
  ++database_.ownTransactions_;
  // After some failures the engine has rolled back by itself; there is nothing left to do then.
  if (open_ && !sqlite3_get_autocommit(database_.Handle())) {
    sqlite3_exec(database_.Handle(), "ROLLBACK", nullptr, nullptr, nullptr);
  }
}

void Transaction::Commit() {
  database_.Execute("COMMIT");
  open_ = false;
}

Snapshot::Snapshot(Database& database)
    : database_(database), owns_(sqlite3_get_autocommit(database.Handle()) != 0) {
  if (owns_) database_.Execute("BEGIN");
}

Snapshot::~Snapshot() {
  if (owns_) sqlite3_exec(database_.Handle(), "COMMIT", nullptr, nullptr, nullptr);
}

}  // namespace mindloft::sqlite
