#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "backend/directory/Changes.h"
#include "backend/directory/Records.h"
#include "backend/directory/sqlite/Database.h"
#include "backend/directory/store/FieldChanges.h"

namespace mindloft {

/// What a journal row is about. `kind` is one of JournalRecord's.
struct JournalSubject {
  const char* kind;
  ObjectId id;
  std::string name;
};

/// The record of all changes. Rows are only ever added, within the transaction of the change, so their
/// identifiers have no gaps.
class Journal {
 public:
  explicit Journal(sqlite::Database& database) : database_(database) {}

  void Write(std::string_view who, const char* action, const JournalSubject& subject,
             const JsonObject& before = {}, const JsonObject& after = {});
  void Write(std::string_view who, const char* action, const JournalSubject& subject,
             const FieldChanges& changes) {
    Write(who, action, subject, changes.Before(), changes.After());
  }

  /// Throws Conflict, with who changed the object last and when, unless the stored version is the one that
  /// the change was based on.
  void RequireVersion(const JournalSubject& subject, Version stored, Version given);

  std::int64_t Count();
  /// The newest first.
  std::vector<JournalRecord> Page(std::int64_t first, std::int64_t count);
  std::vector<JournalRecord> Read(const std::vector<ObjectId>& ids);
  /// -1 when there is no such row.
  std::vector<std::int64_t> PositionsOf(const std::vector<ObjectId>& ids);

 private:
  struct Range {
    ObjectId first, last;
  };
  Range Rows();

  sqlite::Database& database_;
};

}  // namespace mindloft
