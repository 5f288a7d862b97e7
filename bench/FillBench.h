#pragma once

#include <cstdint>
#include <filesystem>

#include "bench/Report.h"

namespace mindloft::bench {

/// Who logs in to a filled directory.
inline constexpr const char* kAdministrator = "bench-administrator";
inline constexpr const char* kPassword = "a password for measuring";

/// An empty directory file with the present schema.
void MakeEmpty(const std::filesystem::path& file);
/// Fills an empty directory with sample users, domains and groups.
void Fill(const std::filesystem::path& file, std::uint32_t users);
/// Fills a second directory with the same rows, statement by statement, and compares the times.
void MeasureFilling(const std::filesystem::path& folder, std::uint32_t users, Report& report);

}  // namespace mindloft::bench
