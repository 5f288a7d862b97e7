#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>

namespace mindloft {

/// Slows the guessing of passwords: after three failures in a row, for one name or over all names, each
/// further one makes the next attempt wait 1, 2, 4, ... and at most 30 seconds.
class LoginThrottle {
 public:
  /// The one of a directory file, kept for the life of the process: opening the file again forgets nothing.
  static LoginThrottle& Of(const std::filesystem::path& file);

  /// Throws LoginDelayed while an attempt under this (folded) name must wait.
  void Require(const std::string& nameKey) const;
  void Failed(const std::string& nameKey);
  void Succeeded(const std::string& nameKey);

 private:
  struct Failures {
    int inARow = 0;
    std::int64_t nextAttempt = 0;  ///< on the monotonic clock
    void Add(std::int64_t now);
  };
  Failures overall_;
  std::map<std::string, Failures> byName_;
};

}  // namespace mindloft
