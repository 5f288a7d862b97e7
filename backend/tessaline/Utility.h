#pragma once

#include <wx/string.h>

#include <filesystem>
#include <functional>
#include <list>
#include <memory>
#include <string>

#include "backend/errors/Error.h"
#include "backend/tessaline/Messenger.h"

namespace mindloft::Tessaline {

class LogFile;

/// File helpers, the error report and error kinds.
class Utility {
 public:
  /// The log file is `mindloft-console.log` in `logFolder`: 1 MiB, three old ones kept; it is opened at the
  /// first line. No log when it cannot be written. An empty folder: the platform's place for logs (documented
  /// in docs/architecture.md).
  explicit Utility(std::filesystem::path logFolder = {});
  ~Utility();

  /// The path of a file of that name in the folder or below it; empty when there is none. A leading "\" or
  /// "/" is ignored.
  wxString LocateFile(const wxString& fileName, const wxString& folder) const;
  bool FileExists(const wxString& path) const;
  /// How a message of this number is shown: application errors by their class, system errors as critical.
  MessageKind ErrorKind(ErrorNumber number) const;
  /// Adds the procedure to the error's trail, writes the log record and returns the number in the slot.
  void ReportError(const std::string& objectName, const std::string& procedureName, ErrorNumber& number,
                   Error& error, int line);
  /// One line into the log file; line breaks and other control characters are written as escapes. Never
  /// fails.
  void Log(const std::string& line) noexcept;
  std::filesystem::path LogFilePath() const;

  /// Brings the views of stored data up to date after a change that no notification tells of: calls those
  /// who asked for it. One that fails is logged and does not keep the others from being called.
  void Refresh();
  /// `view` is called by Refresh for as long as the result lives.
  [[nodiscard]] std::shared_ptr<void> OnRefresh(std::function<void()> view);

 private:
  std::filesystem::path logFolder_;
  std::unique_ptr<LogFile> log_;
  std::list<std::weak_ptr<std::function<void()>>> views_;
};

}  // namespace mindloft::Tessaline
