#pragma once

#include <functional>
#include <future>
#include <memory>
#include <utility>

namespace mindloft::platform {

/// Does a work on another thread, after those given before. One thread does them all: two at a time would
/// take a processor from whoever gives them where there are two. It gives way to other threads, and the
/// program's end waits for it. The work must not throw.
void QueueBeside(std::function<void()> work);

/// The same for a work whose result is wanted: what it returns or throws comes through the future.
template <typename Work>
auto Beside(Work work) {
  using Result = decltype(work());
  // Shared, for a std::function must be one that can be copied.
  const auto task = std::make_shared<std::packaged_task<Result()>>(std::move(work));
  QueueBeside([task] { (*task)(); });
  return task->get_future();
}

}  // namespace mindloft::platform
