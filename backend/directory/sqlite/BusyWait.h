#pragma once

#include <sqlite3.h>

#include <chrono>
#include <random>

namespace mindloft::sqlite {

/// Waits for a file that another connection is changing, by trying again after short random pauses. The
/// engine's own waiting pauses for a tenth of a second in the end: whoever writes without a break leaves the
/// file free for some microseconds at a time, which such tries hardly ever meet.
class BusyWait {
 public:
  /// How long one wait may last in all. Must live as long as the connection.
  BusyWait(sqlite3* database, std::chrono::milliseconds patience);
  BusyWait(const BusyWait&) = delete;
  BusyWait& operator=(const BusyWait&) = delete;

 private:
  static int Wait(void* self, int waits) noexcept;
  bool WaitOnce(bool isFirst);

  std::chrono::milliseconds patience_;
  std::chrono::steady_clock::time_point end_;
  std::minstd_rand random_;
};

}  // namespace mindloft::sqlite
