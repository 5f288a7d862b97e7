#pragma once

#include <sqlite3.h>

namespace mindloft::test {

/// While it lives, the database engine's writes (write, sync, truncate, create) to any file are counted, and
/// from the chosen one on they all fail, as on a full or broken disk.
class FaultyFiles {
 public:
  /// `code` is SQLITE_FULL or an SQLITE_IOERR_... code.
  FaultyFiles();
  ~FaultyFiles();
  FaultyFiles(const FaultyFiles&) = delete;
  FaultyFiles& operator=(const FaultyFiles&) = delete;

  /// Starts counting anew; the `write`-th write (from 1) and all later ones fail. 0: none.
  void FailFrom(int write, int code);
  int Writes() const;

 private:
  sqlite3_vfs* previous_;
};

}  // namespace mindloft::test
