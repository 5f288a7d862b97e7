#pragma once

#include <filesystem>

#include "bench/Report.h"

namespace mindloft::bench {

/// The first use of each language in a copy of the directory, reading by its rules, and changes that keep the
/// orders of all of them.
void MeasureLanguages(const std::filesystem::path& file, Report& report);

}  // namespace mindloft::bench
