#pragma once

#include <filesystem>
#include <functional>
#include <string>

namespace mindloft::platform {

/// Opens a file or folder with the program that the desktop has for it (the shell's "open" verb). False when
/// it does not exist or nothing could be started.
bool OpenWithShell(const std::filesystem::path& path);

/// Opens an address that begins with "http:", "https:" or "mailto:" with the user's browser or mail program.
/// False for any other address, or when nothing could be started.
bool OpenUrl(const std::string& url);

/// Lets a test see what would be opened, and answer for the shell, until it goes.
class FakeShell {
 public:
  /// The function is handed the path (UTF-8) or the address.
  explicit FakeShell(std::function<bool(const std::string&)> open);
  ~FakeShell();
  FakeShell(const FakeShell&) = delete;
  FakeShell& operator=(const FakeShell&) = delete;
};

/// What the two above come to: the system's own shell, without any check. An absolute path or an address.
bool OpenInSystemShell(const std::string& target);

}  // namespace mindloft::platform
