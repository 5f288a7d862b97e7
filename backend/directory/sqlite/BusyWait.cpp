#include "backend/directory/sqlite/BusyWait.h"

#include <thread>

namespace mindloft::sqlite {
namespace {

// Random, so that the tries do not keep step with the other's changes.
constexpr int kShortestPause = 100;  // microseconds
constexpr int kLongestPause = 1500;

}  // namespace

BusyWait::BusyWait(sqlite3* database, std::chrono::milliseconds patience)
    : patience_(patience), random_(std::random_device()()) {
  sqlite3_busy_handler(database, &BusyWait::Wait, this);
}

int BusyWait::Wait(void* self, int waits) noexcept {
  try {
    return static_cast<BusyWait*>(self)->WaitOnce(waits == 0) ? 1 : 0;
  } catch (...) {
    return 0;
  }
}

bool BusyWait::WaitOnce(bool isFirst) {
  const auto now = std::chrono::steady_clock::now();
  if (isFirst) end_ = now + patience_;
  if (now >= end_) return false;
  std::uniform_int_distribution pause(kShortestPause, kLongestPause);
  std::this_thread::sleep_for(std::chrono::microseconds(pause(random_)));
  return true;
}

}  // namespace mindloft::sqlite
