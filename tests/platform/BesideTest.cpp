#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <stdexcept>
#include <thread>
#include <vector>

#include "platform/Beside.h"

namespace mindloft::platform {

TEST(BesideTest, WorksComeOneAfterAnotherOnAnotherThread) {
  std::vector<int> order;
  std::atomic<int> atATime = 0;
  bool together = false;
  std::vector<std::future<std::thread::id>> threads;
  for (int i = 0; i < 20; ++i)
    threads.push_back(Beside([&, i] {
      together = together || ++atATime > 1;
      order.push_back(i);
      std::this_thread::yield();
      --atATime;
      return std::this_thread::get_id();
    }));
  for (auto& thread : threads) EXPECT_NE(thread.get(), std::this_thread::get_id());
  EXPECT_FALSE(together);
  EXPECT_EQ(order, (std::vector{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19}));
}

TEST(BesideTest, FailureComesThroughTheFutureAndTheNextWorkIsDone) {
  auto failed = Beside([]() -> int { throw std::runtime_error("on purpose"); });
  auto done = Beside([] { return 7; });
  EXPECT_THROW(failed.get(), std::runtime_error);
  EXPECT_EQ(done.get(), 7);
}

TEST(BesideTest, WorkIsTakenWhileTheThreadEnds) {
  for (int i = 0; i < 200; ++i) {
    ASSERT_EQ(Beside([i] { return i; }).get(), i);
    // The thread has nothing more to do, and is ending or has ended.
    if (i % 10 == 0) std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
}

}  // namespace mindloft::platform
