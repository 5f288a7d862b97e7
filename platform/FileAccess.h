#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace mindloft::platform {

/// The whole file; nothing when there is none. Error(PathAccess) when there is one that cannot be read.
std::optional<std::string> ReadWholeFile(const std::filesystem::path& file);

/// Puts the content in the file's place in one step: after a failure or a crash the file is the old one or
/// the new one, whole. Readable by its owner only. Error(DiskFull) or Error(PathAccess) when it stays the old
/// one.
void ReplaceWholeFile(const std::filesystem::path& file, std::string_view content);

/// Holds a file for this process among all processes, until it goes. Waits for another holder; the file is
/// made when it is not there, and stays. Error(PathAccess) when it cannot be had.
class FileLock {
 public:
  explicit FileLock(const std::filesystem::path& file);
  ~FileLock();
  FileLock(const FileLock&) = delete;
  FileLock& operator=(const FileLock&) = delete;

 private:
  struct Handle;
  Handle* handle_;
};

}  // namespace mindloft::platform
