#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "backend/directory/Directory.h"

namespace mindloft {

/// How many objects a directory holds, for the tools.
struct DirectoryInfo {
  int schemaVersion = 0;
  std::int64_t users = 0, roles = 0, domains = 0, groups = 0, groupMembers = 0, domainUsers = 0, styles = 0,
               changes = 0;
};

/// The first user of a new directory; gets the role that holds all system privileges.
struct FirstAdministrator {
  std::string name;
  std::string password;
};

/// The embedded engine: a directory in one SQLite file on this computer.
class SqliteDirectory : public Directory {
 public:
  /// Makes a new directory file with its built-in roles, a starting set of styles and the first
  /// administrator. DirectoryExists when there is a file already, unless `overwrite`. Leaves nothing behind
  /// when it fails.
  static void Create(const std::filesystem::path& file, const FirstAdministrator& administrator,
                     bool overwrite = false);

  /// Opens a directory file and brings an older schema up to date. Refuses, untouched: DirectoryNotFound,
  /// DirectoryForeign, DirectoryDamaged, DirectoryNewer, DirectoryReadOnly.
  static std::unique_ptr<SqliteDirectory> Open(const std::filesystem::path& file);

  /// What is wrong with the file, in words for an administrator's terminal: integrity, references, guard
  /// rails, the order and search indexes. Empty: all is well.
  virtual std::vector<std::string> Check() = 0;
  virtual DirectoryInfo Info() = 0;
};

}  // namespace mindloft
