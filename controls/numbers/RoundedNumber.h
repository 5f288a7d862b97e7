#pragma once

#include <cstddef>
#include <string>

namespace mindloft {

/// A number in decimal digits, rounded to a count of decimals: halves away from zero. The rounding looks at
/// 15 digits, as many as a double surely has, so that 1.005 is a half and rounds to 1.01.
struct RoundedNumber {
  /// `number` (its sign does not count) times ten to the power of `shift`.
  RoundedNumber(double number, int shift, std::size_t decimals);

  std::string whole;     ///< without leading zeros: empty below 1
  std::string fraction;  ///< exactly `decimals` digits
  bool IsZero() const;
};

}  // namespace mindloft
