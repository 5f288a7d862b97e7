#include "backend/tessaline/login/LoginDelay.h"

#include <algorithm>

#include "platform/Clock.h"

namespace mindloft {

void LoginDelay::Start(int seconds) {
  end_ = platform::MonotonicMilliseconds() + std::int64_t{std::max(seconds, 0)} * 1000;
}

int LoginDelay::SecondsLeft() const {
  const auto left = end_ - platform::MonotonicMilliseconds();
  return left > 0 ? static_cast<int>((left + 999) / 1000) : 0;
}

}  // namespace mindloft
