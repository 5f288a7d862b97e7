#pragma once

#include <filesystem>
#include <memory>
#include <string>

namespace mindloft::Tessaline {

/// A log file that starts anew when it has grown to 1 MiB; three old ones are kept (name.1.log to
/// name.3.log).
class LogFile {
 public:
  /// Creates the folder and opens the file; throws a standard exception when either fails.
  explicit LogFile(const std::filesystem::path& file);
  ~LogFile();
  LogFile(const LogFile&) = delete;
  LogFile& operator=(const LogFile&) = delete;

  /// Writes the local time, the process and the line, and hands them to the system at once. May throw.
  void Write(const std::string& line);

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace mindloft::Tessaline
