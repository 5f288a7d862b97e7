#include "controls/numbers/SpinValue.h"

#include <algorithm>
#include <limits>

#include "backend/errors/Error.h"

namespace mindloft {

void SpinValue::SetMinimum(std::int32_t minimum) {
  minimum_ = minimum;
  SetValue(value_);
}

void SpinValue::SetMaximum(std::int32_t maximum) {
  maximum_ = maximum;
  SetValue(value_);
}

void SpinValue::SetValue(std::int32_t value) {
  value_ = std::min(std::max(value, minimum_), maximum_);
}

void SpinValue::Step(bool up, std::int32_t increment) {
  if (up ? value_ >= maximum_ : value_ <= minimum_) return;
  const std::int64_t stepped = std::int64_t{value_} + (up ? 1 : -1) * std::int64_t{increment};
  if (stepped < std::numeric_limits<std::int32_t>::min() ||
      stepped > std::numeric_limits<std::int32_t>::max())
    throw Error(ErrorNumber::Overflow, "the step from " + std::to_string(value_) + " by " +
                                           std::to_string(increment) + " leaves 32 bits");
  SetValue(static_cast<std::int32_t>(stepped));
}

}  // namespace mindloft
