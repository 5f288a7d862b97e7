#pragma once

#include <wx/string.h>

#include <cstdint>

namespace mindloft {

/// The number with the current language's separator between its groups of three digits.
wxString GroupedNumber(std::int64_t number);

}  // namespace mindloft
