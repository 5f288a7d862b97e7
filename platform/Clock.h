#pragma once

#include <cstdint>

namespace mindloft::platform {

/// Milliseconds since 1970-01-01 00:00 UTC.
std::int64_t NowMilliseconds();

/// Milliseconds of a clock that never goes back.
std::int64_t MonotonicMilliseconds();

/// Lets both clocks stand still at times that the test sets, until it goes.
class FakeClock {
 public:
  explicit FakeClock(std::int64_t milliseconds);
  ~FakeClock();
  FakeClock(const FakeClock&) = delete;
  FakeClock& operator=(const FakeClock&) = delete;
  void Set(std::int64_t milliseconds);
  void Advance(std::int64_t milliseconds);
  /// From now on both clocks go on by so much after each reading: what is measured takes that long.
  void AdvanceAtReading(std::int64_t milliseconds);
};

}  // namespace mindloft::platform
