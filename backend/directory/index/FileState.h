#pragma once

#include <cstdint>

#include "backend/directory/sqlite/Database.h"

namespace mindloft {

/// Tells whether a file may have changed since it was last asked, by this connection or another one.
class FileState {
 public:
  explicit FileState(sqlite::Database& database) : database_(database) {}

  /// Call it in a Snapshot. Always true within a write transaction and once after it: it may be rolled back.
  bool Changed() {
    if (sqlite3_txn_state(database_.Handle(), nullptr) == SQLITE_TXN_WRITE) {
      known_ = false;
      return true;
    }
    auto version = database_.Prepare("PRAGMA data_version");
    version->Step();
    // The first counts the others' changes, the second those of this connection.
    auto others = version->Int(0);
    auto own = static_cast<std::int64_t>(sqlite3_total_changes64(database_.Handle()));
    bool changed = !known_ || others != others_ || own != own_;
    others_ = others;
    own_ = own;
    known_ = true;
    return changed;
  }

 private:
  sqlite::Database& database_;
  bool known_ = false;
  std::int64_t others_ = 0, own_ = 0;
};

}  // namespace mindloft
