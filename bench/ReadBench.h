#pragma once

#include <filesystem>

#include "bench/Report.h"

namespace mindloft::bench {

/// Pages, filters and orders on an index of a filled directory.
void MeasureReading(const std::filesystem::path& file, Report& report);

}  // namespace mindloft::bench
