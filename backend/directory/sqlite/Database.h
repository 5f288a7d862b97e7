#pragma once

#include <sqlite3.h>

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "backend/directory/sqlite/BusyWait.h"
#include "backend/errors/Error.h"

namespace mindloft::sqlite {

/// The engine's last failure as an Error: a full disk, a busy, damaged or read-only file have numbers of
/// their own, everything else is Storage.
[[noreturn]] void ThrowLastError(sqlite3* database, int code, std::string_view doing);

/// A prepared statement. Indexes of parameters and columns count from 0. Texts and blobs that Column...
/// returns are valid until the next Step or Reset.
class Statement {
 public:
  Statement(sqlite3* database, std::string_view sql);

  Statement& Bind(int index, std::int64_t value);
  Statement& Bind(int index, std::string_view text);
  Statement& BindBlob(int index, std::string_view blob);
  Statement& BindNull(int index);
  /// Binds all parameters from the first on.
  template <typename... Values>
  Statement& BindAll(const Values&... values) {
    int index = 0;
    (Bind(index++, values), ...);
    return *this;
  }

  /// True when there is a row.
  bool Step();
  /// Runs a statement that gives no rows and resets it.
  void Run();
  void Reset();

  std::int64_t Int(int column) const { return sqlite3_column_int64(statement_.get(), column); }
  std::string Text(int column) const { return std::string(TextView(column)); }
  std::string_view TextView(int column) const;
  std::string_view BlobView(int column) const;
  bool IsNull(int column) const { return sqlite3_column_type(statement_.get(), column) == SQLITE_NULL; }

 private:
  struct Finalize {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
  };
  sqlite3* database_;
  std::unique_ptr<sqlite3_stmt, Finalize> statement_;
};

/// A statement of the database's cache in use: reset when this goes.
class CachedStatement {
 public:
  explicit CachedStatement(Statement& statement) : statement_(&statement) {}
  CachedStatement(CachedStatement&& other) noexcept : statement_(std::exchange(other.statement_, nullptr)) {}
  CachedStatement& operator=(CachedStatement&&) = delete;
  ~CachedStatement() {
    if (statement_) statement_->Reset();
  }
  Statement* operator->() const { return statement_; }
  Statement& operator*() const { return *statement_; }

 private:
  Statement* statement_;
};

/// Identifies a state of the file as one connection sees it: equal as long as nothing has changed.
struct FileState {
  std::int64_t otherConnections = 0;  ///< changes by others
  std::int64_t ownRows = 0;           ///< rows written by this one
  std::int64_t ownTransactions = 0;   ///< transactions ended: a rolled back one takes its rows back
  bool operator==(const FileState&) const = default;
};

/// One connection to a database file.
class Database {
 public:
  /// `flags` are SQLITE_OPEN_... flags.
  Database(const std::filesystem::path& file, int flags);

  /// From here on waits so long for a file that another connection is changing; without it, not at all.
  void WaitWhileBusy(std::chrono::milliseconds patience);
  void Execute(const char* sql);
  /// The cached statement of this text, prepared at its first use. One use of it at a time.
  CachedStatement Prepare(std::string_view sql);
  std::int64_t LastInsertId() const { return sqlite3_last_insert_rowid(database_.get()); }
  /// Rows changed by the last statement.
  std::int64_t Changes() const { return sqlite3_changes64(database_.get()); }
  sqlite3* Handle() const { return database_.get(); }
  /// The state that the next read sees; within a Snapshot or Transaction, the state that all its reads see.
  FileState State();

 private:
  friend class Transaction;
  struct Close {
    void operator()(sqlite3* database) const { sqlite3_close_v2(database); }
  };
  struct Hash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
  };
  std::unique_ptr<BusyWait> busyWait_;  // goes after the connection
  std::unique_ptr<sqlite3, Close> database_;
  std::int64_t ownTransactions_ = 0;
  // Closed before the database.
  std::unordered_map<std::string, std::unique_ptr<Statement>, Hash, std::equal_to<>> statements_;
};

/// A write transaction (BEGIN IMMEDIATE): rolled back when it goes without Commit. DirectoryBusy when one is
/// open already, as it is while a long change reports its progress.
class Transaction {
 public:
  explicit Transaction(Database& database);
  ~Transaction();
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;
  void Commit();

 private:
  Database& database_;
  bool open_ = true;
};

/// A read transaction: all reads within see the same state of the file. Nothing happens when one is open
/// already.
class Snapshot {
 public:
  explicit Snapshot(Database& database);
  ~Snapshot();
  Snapshot(const Snapshot&) = delete;
  Snapshot& operator=(const Snapshot&) = delete;

 private:
  Database& database_;
  bool owns_ = false;
};

}  // namespace mindloft::sqlite
