#pragma once

#include <cstdint>

namespace mindloft {

/// The value of an up/down spinner: always inside its range. Where the greatest is below the least the value
/// is the greatest, and cannot be moved.
class SpinValue {
 public:
  std::int32_t Minimum() const { return minimum_; }
  std::int32_t Maximum() const { return maximum_; }
  std::int32_t Value() const { return value_; }
  void SetMinimum(std::int32_t minimum);
  void SetMaximum(std::int32_t maximum);
  /// The nearest that the range allows.
  void SetValue(std::int32_t value);

  /// Raises the value (`up`) unless it is the greatest, or lowers it unless it is the least. Throws Overflow
  /// when the step leaves 32 bits; the value stays then.
  void Step(bool up, std::int32_t increment);

 private:
  std::int32_t minimum_ = 0;
  std::int32_t maximum_ = 0;
  std::int32_t value_ = 0;
};

}  // namespace mindloft
