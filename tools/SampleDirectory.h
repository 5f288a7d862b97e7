#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace mindloft {

constexpr std::int64_t kMaximumSampleUsers = 10'000'000;
constexpr std::int64_t kMaximumSampleDomains = 10'000;
constexpr std::int64_t kMaximumSampleGroups = 1'000;

struct SampleOptions {
  std::int64_t users = 1000;  ///< in all, with the administrator
  std::int64_t domains = 12;
  std::int64_t groups = 5;  ///< of each domain, beside its administrators
  std::uint64_t seed = 1;
  bool overwrite = false;
};

/// Makes a directory file filled with invented objects, the same for the same options; only the password of
/// its administrator "admin" is new each time, and is returned. DirectoryExists when there is a file already,
/// unless `overwrite`. The file appears when it is complete; nothing is left behind by a failure.
std::string MakeSampleDirectory(const std::filesystem::path& file, const SampleOptions& options);

}  // namespace mindloft
