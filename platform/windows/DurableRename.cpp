#include "platform/DurableRename.h"

#include <windows.h>

#include <system_error>

#include "backend/errors/Error.h"

namespace mindloft::platform {

bool DurableRename(const std::filesystem::path& from, const std::filesystem::path& to, bool replace) {
  DWORD flags = MOVEFILE_WRITE_THROUGH | (replace ? MOVEFILE_REPLACE_EXISTING : 0);
  if (MoveFileExW(from.c_str(), to.c_str(), flags)) return true;
  DWORD code = GetLastError();
  if (!replace && (code == ERROR_ALREADY_EXISTS || code == ERROR_FILE_EXISTS)) return false;
  throw Error(ErrorNumber::PathAccess, std::system_category().message(static_cast<int>(code)));
}

}  // namespace mindloft::platform
