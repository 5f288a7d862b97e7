#include "platform/Paths.h"

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>

#include "backend/errors/Error.h"

namespace mindloft::platform {
namespace {

std::filesystem::path Home() {
  if (const char* home = std::getenv("HOME"); home && *home == '/') return home;
  if (const passwd* user = getpwuid(getuid()); user && user->pw_dir && *user->pw_dir) return user->pw_dir;
  throw Error(ErrorNumber::PathAccess, "the user has no home folder");
}

/// The folder that the environment names (an absolute one), else the one in the user's home.
std::filesystem::path BaseFolder(const char* variable, const char* inHome) {
  if (const char* folder = std::getenv(variable); folder && *folder == '/') return folder;
  return Home() / inHome;
}

/// A folder that belongs to this user and that nobody else can enter.
bool IsPrivate(const std::filesystem::path& folder) {
  struct stat status {};
  return lstat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == getuid() &&
         (status.st_mode & 077) == 0;
}

}  // namespace

std::filesystem::path ProgramFolder() {
  return std::filesystem::read_symlink("/proc/self/exe").parent_path();
}

std::filesystem::path DefaultDirectoryFile() {
  return BaseFolder("XDG_DATA_HOME", ".local/share") / "mindloft" / "mindloft.directory";
}

std::filesystem::path ConfigFolder() {
  return BaseFolder("XDG_CONFIG_HOME", ".config") / "mindloft";
}

std::filesystem::path LogFolder() {
  return BaseFolder("XDG_STATE_HOME", ".local/state") / "mindloft";
}

std::filesystem::path RuntimeFolder() {
  if (const char* folder = std::getenv("XDG_RUNTIME_DIR"); folder && *folder == '/' && IsPrivate(folder)) {
    return folder;
  }
  auto folder = std::filesystem::temp_directory_path() / ("mindloft-" + std::to_string(getuid()));
  if (mkdir(folder.c_str(), 0700) != 0 && errno != EEXIST) {
    throw Error(ErrorNumber::PathAccess, folder.string() + ";" + std::strerror(errno), {folder.string()});
  }
  if (!IsPrivate(folder)) {
    throw Error(ErrorNumber::PathAccess, folder.string() + ";not this user's own", {folder.string()});
  }
  return folder;
}

}  // namespace mindloft::platform
