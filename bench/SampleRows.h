#pragma once

#include <cstdint>
#include <string_view>

#include "backend/directory/Records.h"

namespace mindloft::bench {

/// Users with texts of the lengths that real directories have, a fifth of them not in Latin letters. The same
/// user for the same number at every call.
UserRecord SampleUser(std::uint32_t number);

/// Texts that occur in the sample often, seldom and never; typed letter by letter in the benchmarks.
inline constexpr std::string_view kTypedTexts[] = {"sarah jo", "office", "li wei",
                                                   "u000123",  "qqqqq",  "ольга"};

}  // namespace mindloft::bench
