#pragma once

#include <filesystem>

#include "bench/Report.h"

namespace mindloft::bench {

/// Measures changes of many users at once, in a copy of the filled file.
void MeasureChanging(const std::filesystem::path& file, Report& report);

}  // namespace mindloft::bench
