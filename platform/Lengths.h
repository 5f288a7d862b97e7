#pragma once

#include <cmath>

namespace mindloft::platform {

// Lengths on paper are counted in tenths of a millimetre, as printer drivers and the rich-text component do.

inline constexpr int kTenthsPerMillimetre = 10;
inline constexpr int kTenthsPerInch = 254;

constexpr double MillimetresOf(int tenths) {
  return static_cast<double>(tenths) / kTenthsPerMillimetre;
}

/// Rounded, halves away from zero.
inline int TenthsOf(double millimetres) {
  return static_cast<int>(std::lround(millimetres * kTenthsPerMillimetre));
}

}  // namespace mindloft::platform
