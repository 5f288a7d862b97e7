#include "platform/Clock.h"

#include <chrono>
#include <optional>

namespace mindloft::platform {
namespace {

std::optional<std::int64_t> fakeTime;
std::int64_t fakeStep = 0;

std::int64_t ReadFake() {
  const auto now = *fakeTime;
  *fakeTime += fakeStep;
  return now;
}

template <typename Clock>
std::int64_t Milliseconds() {
  return std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now().time_since_epoch()).count();
}

}  // namespace

std::int64_t NowMilliseconds() {
  return fakeTime ? ReadFake() : Milliseconds<std::chrono::system_clock>();
}

std::int64_t MonotonicMilliseconds() {
  return fakeTime ? ReadFake() : Milliseconds<std::chrono::steady_clock>();
}

FakeClock::FakeClock(std::int64_t milliseconds) {
  fakeTime = milliseconds;
}
FakeClock::~FakeClock() {
  fakeTime.reset();
  fakeStep = 0;
}
void FakeClock::Set(std::int64_t milliseconds) {
  fakeTime = milliseconds;
}
void FakeClock::Advance(std::int64_t milliseconds) {
  *fakeTime += milliseconds;
}
void FakeClock::AdvanceAtReading(std::int64_t milliseconds) {
  fakeStep = milliseconds;
}

}  // namespace mindloft::platform
