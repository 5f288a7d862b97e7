#include "platform/DurableRename.h"

#include <fcntl.h>
#include <stdio.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

#include "backend/errors/Error.h"

namespace mindloft::platform {
namespace {

[[noreturn]] void Fail(const std::filesystem::path& path, int code) {
  throw Error(ErrorNumber::PathAccess, path.string() + ";" + std::generic_category().message(code));
}

void SyncFolder(const std::filesystem::path& folder) {
  int handle = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (handle < 0) Fail(folder, errno);
  int code = fsync(handle) == 0 ? 0 : errno;
  close(handle);
  // Some file systems cannot sync a folder; the rename itself has happened then.
  if (code != 0 && code != EINVAL) Fail(folder, code);
}

}  // namespace

bool DurableRename(const std::filesystem::path& from, const std::filesystem::path& to, bool replace) {
  unsigned flags = replace ? 0 : RENAME_NOREPLACE;
  if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), flags) != 0) {
    if (errno == EEXIST) return false;
    // Not every file system knows the flag; a hard link refuses an existing name too.
    if (errno != EINVAL || replace) Fail(to, errno);
    if (link(from.c_str(), to.c_str()) != 0) {
      if (errno == EEXIST) return false;
      Fail(to, errno);
    }
    unlink(from.c_str());
  }
  SyncFolder(std::filesystem::absolute(to).parent_path());
  return true;
}

}  // namespace mindloft::platform
