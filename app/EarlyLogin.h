#pragma once

#include <filesystem>
#include <future>
#include <memory>
#include <string>

#include "backend/directory/Directory.h"

namespace mindloft {

/// Opens the directory on this computer, and works on the password of an automatic login, while the toolkit
/// starts: either takes about as long. Nobody is logged in by it, and nothing is changed.
class EarlyLogin {
 public:
  /// Begins when the settings ask for an automatic login.
  explicit EarlyLogin(std::filesystem::path directoryFile);
  /// Waits for the work.
  ~EarlyLogin();

  /// The directory: the prepared one for the first caller, one opened anew for all others and where the
  /// preparation failed. Throws as SqliteDirectory::Open.
  std::shared_ptr<Directory> Open();

 private:
  std::filesystem::path file_;
  std::future<std::shared_ptr<Directory>> prepared_;
};

}  // namespace mindloft
