#include "platform/Beside.h"

#include <deque>
#include <mutex>
#include <thread>

#include "platform/ThreadPriority.h"

namespace mindloft::platform {
namespace {

class Line {
 public:
  void Add(std::function<void()> work) {
    const std::lock_guard lock(mutex_);
    works_.push_back(std::move(work));
    if (isRunning_) return;
    // One that has run out of works is about to end, and needs nothing more for it.
    thread_ = std::jthread([this] { Run(); });
    isRunning_ = true;
  }

 private:
  void Run() {
    GiveWay();
    while (const auto work = Next()) work();
  }

  std::function<void()> Next() {
    const std::lock_guard lock(mutex_);
    if (works_.empty()) {
      isRunning_ = false;
      return {};
    }
    auto work = std::move(works_.front());
    works_.pop_front();
    return work;
  }

  std::mutex mutex_;
  std::deque<std::function<void()>> works_;
  bool isRunning_ = false;
  std::jthread thread_;
};

}  // namespace

void QueueBeside(std::function<void()> work) {
  static Line line;
  line.Add(std::move(work));
}

}  // namespace mindloft::platform
