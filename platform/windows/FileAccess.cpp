#include "platform/FileAccess.h"

#include <windows.h>

#include "backend/errors/Error.h"
#include "platform/Paths.h"
#include "platform/windows/Handle.h"
#include "platform/windows/Wide.h"

namespace mindloft::platform {
namespace {

constexpr int ReplaceAttempts = 50;
constexpr DWORD ReplacePause = 10;  // milliseconds

[[noreturn]] void Fail(const char* what, const std::filesystem::path& file) {
  auto failure = GetLastError();
  bool isFull = failure == ERROR_DISK_FULL || failure == ERROR_HANDLE_DISK_FULL;
  throw Error(isFull ? ErrorNumber::DiskFull : ErrorNumber::PathAccess,
              std::string(what) + ";" + PathToUtf8(file) + ";" + SystemErrorText(failure),
              {PathToUtf8(file)});
}

void WriteAndFlush(const std::filesystem::path& file, std::string_view content) {
  Handle handle(
      CreateFileW(file.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
  if (!handle) Fail("writing", file);
  while (!content.empty()) {
    DWORD count = 0;
    auto part = static_cast<DWORD>(std::min<std::size_t>(content.size(), 1 << 24));
    if (!WriteFile(handle.Get(), content.data(), part, &count, nullptr)) Fail("writing", file);
    content.remove_prefix(count);
  }
  if (!FlushFileBuffers(handle.Get())) Fail("writing", file);
}

/// Another process that reads the file just now holds it for a moment.
bool Move(const std::filesystem::path& from, const std::filesystem::path& to) {
  for (int attempt = 1;; ++attempt) {
    if (MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
      return true;
    auto failure = GetLastError();
    bool isHeld = failure == ERROR_SHARING_VIOLATION || failure == ERROR_ACCESS_DENIED;
    if (!isHeld || attempt == ReplaceAttempts || std::filesystem::is_directory(to)) {
      SetLastError(failure);
      return false;
    }
    Sleep(ReplacePause);
  }
}

}  // namespace

std::optional<std::string> ReadWholeFile(const std::filesystem::path& file) {
  Handle handle(CreateFileW(file.c_str(), GENERIC_READ,
                            FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                            FILE_ATTRIBUTE_NORMAL, nullptr));
  if (!handle) {
    if (GetLastError() == ERROR_FILE_NOT_FOUND || GetLastError() == ERROR_PATH_NOT_FOUND) return {};
    Fail("opening", file);
  }
  std::string content;
  char buffer[65536];
  for (DWORD count = 1; count > 0;) {
    if (!::ReadFile(handle.Get(), buffer, sizeof buffer, &count, nullptr)) Fail("reading", file);
    content.append(buffer, count);
  }
  return content;
}

void ReplaceWholeFile(const std::filesystem::path& file, std::string_view content) {
  auto draft = file;
  draft += ".new-" + std::to_string(GetCurrentProcessId());
  try {
    WriteAndFlush(draft, content);
    if (!Move(draft, file)) Fail("replacing", file);
  } catch (...) {
    DeleteFileW(draft.c_str());
    throw;
  }
}

struct FileLock::Handle {
  platform::Handle file;
};

FileLock::FileLock(const std::filesystem::path& file) : handle_(nullptr) {
  platform::Handle handle(CreateFileW(file.c_str(), GENERIC_READ | GENERIC_WRITE,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                      OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
  if (!handle) Fail("opening", file);
  OVERLAPPED firstByte{};
  if (!LockFileEx(handle.Get(), LOCKFILE_EXCLUSIVE_LOCK, 0, 1, 0, &firstByte)) Fail("locking", file);
  handle_ = new Handle{std::move(handle)};
}

FileLock::~FileLock() {
  delete handle_;
}

}  // namespace mindloft::platform
