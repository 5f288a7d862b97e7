#include "backend/directory/file/DirectoryMaker.h"

#include <string>

#include "backend/directory/file/DirectoryFile.h"
#include "backend/directory/file/Schema.h"
#include "backend/directory/file/StartingContent.h"
#include "platform/DurableRename.h"
#include "platform/Random.h"

namespace mindloft {
namespace {

namespace fs = std::filesystem;

fs::path Beside(const fs::path& file, const std::string& suffix) {
  fs::path neighbour = file;
  neighbour += suffix;
  return neighbour;
}

[[noreturn]] void FailWithPath(const fs::filesystem_error& error) {
  throw Error(ErrorNumber::PathAccess, error.what());
}

/// The missing folders above the file, for their owner alone.
void MakeFolders(const fs::path& folder) {
  if (folder.empty() || fs::exists(folder)) return;
  MakeFolders(folder.parent_path());
  if (fs::create_directory(folder)) fs::permissions(folder, fs::perms::owner_all);
}

/// A file under construction, removed with all that may lie beside it unless it has been moved away.
class TemporaryFile {
 public:
  explicit TemporaryFile(const fs::path& target) {
    std::string suffix = ".new-";
    for (unsigned char byte : platform::RandomBytes(8)) suffix += static_cast<char>('a' + byte % 26);
    path_ = Beside(target, suffix);
  }
  ~TemporaryFile() {
    std::error_code ignored;
    for (const char* suffix : {"", "-wal", "-shm", "-journal"}) fs::remove(Beside(path_, suffix), ignored);
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  const fs::path& Path() const { return path_; }

 private:
  fs::path path_;
};

/// Brings the log of the directory that is to be replaced home: left beside it, it would be taken for the new
/// one's. DirectoryBusy when somebody works with it.
void SettleLog(const fs::path& file) {
  if (fs::exists(Beside(file, "-wal"))) {
    try {
      sqlite::Database old(file, SQLITE_OPEN_READWRITE);
      old.WaitWhileBusy(std::chrono::milliseconds(1000));
      old.Execute("PRAGMA journal_mode = DELETE");
    } catch (const Error& error) {
      if (error.Number() == ErrorNumber::DirectoryBusy) throw;
      // No database any more; there is nothing to bring home.
    }
  }
  fs::remove(Beside(file, "-wal"));
  fs::remove(Beside(file, "-shm"));
}

void Fill(const fs::path& file, const FirstAdministrator& administrator) {
  auto database = CreateDirectoryFile(file);
  Migrate(*database, Migrations());
  {
    sqlite::Transaction transaction(*database);
    AddStartingContent(*database, administrator.name, administrator.password);
    transaction.Commit();
  }
  // Kept in the file; closing brings everything into it and syncs it.
  database->Execute("PRAGMA journal_mode = WAL");
}

}  // namespace

void MakeDirectory(const fs::path& file, const FirstAdministrator& administrator, bool overwrite) {
  try {
    if (!overwrite && fs::exists(fs::symlink_status(file))) throw Error(ErrorNumber::DirectoryExists);
    if (fs::is_directory(file)) throw Error(ErrorNumber::PathAccess, "a folder has that name");
    MakeFolders(fs::absolute(file).parent_path());
    TemporaryFile made(file);
    Fill(made.Path(), administrator);
    if (overwrite) SettleLog(file);
    if (!platform::DurableRename(made.Path(), file, overwrite)) throw Error(ErrorNumber::DirectoryExists);
  } catch (const fs::filesystem_error& error) {
    FailWithPath(error);
  }
}

}  // namespace mindloft
