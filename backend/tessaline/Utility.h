#pragma once

#include <wx/string.h>

#include <cstdint>
#include <filesystem>
#include <string>

#include "backend/errors/Error.h"
#include "backend/tessaline/Messenger.h"

namespace mindloft::Tessaline {

/// File helpers, the error report and error kinds.
class Utility {
 public:
  /// Opens the log file `mindloft-console.log` in `logFolder`: 1 MiB, three old ones kept. No log when it
  /// cannot be written. An empty folder: the platform's place for logs (documented in docs/architecture.md).
  explicit Utility(std::filesystem::path logFolder = {});

  /// The path of a file of that name in the folder or below it; empty when there is none. A leading "\" or
  /// "/" is ignored.
  wxString LocateFile(const wxString& fileName, const wxString& folder) const;
  bool FileExists(const wxString& path) const;
  /// How a message of this number is shown: application errors by their class, system errors as critical.
  MessageKind ErrorKind(ErrorNumber number) const;
  /// Adds the procedure to the error's trail, writes the log record and returns the number in the slot.
  void ReportError(const std::string& objectName, const std::string& procedureName, ErrorNumber& number,
                   Error& error, int line);
  /// One line into the log file.
  void Log(const std::string& line);
  std::filesystem::path LogFile() const;
};

}  // namespace mindloft::Tessaline
