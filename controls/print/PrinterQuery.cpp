#include "controls/print/PrinterQuery.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>

#include "core/ErrorHandling.h"

namespace mindloft {
namespace {

/// Two of them in a row are hardly noticed.
constexpr std::chrono::milliseconds kPatience{200};
constexpr int kLookAgain = 50;  // milliseconds

}  // namespace

/// What the two threads share.
struct PrinterQuery::Pending {
  std::mutex mutex;
  std::condition_variable changed;
  bool isDone = false;

  void Finish() {
    const std::lock_guard lock(mutex);
    isDone = true;
    changed.notify_all();
  }
  bool WaitFor(std::chrono::milliseconds time) {
    std::unique_lock lock(mutex);
    return changed.wait_for(lock, time, [this] { return isDone; });
  }
};

PrinterQuery::PrinterQuery() {
  timer_.Bind(wxEVT_TIMER,
              [this](wxTimerEvent&) { Guarded("PrinterQuery", "OnTimer", [this] { OnTimer(); }); });
}

PrinterQuery::~PrinterQuery() = default;

void PrinterQuery::GiveUp() {
  timer_.Stop();
  pending_.reset();
  answer_ = nullptr;
}

void PrinterQuery::Start(std::function<void()> question, std::function<void()> answer) {
  GiveUp();
  auto pending = std::make_shared<Pending>();
  std::thread([pending, question = std::move(question)]() mutable {
    try {
      question();
    } catch (...) {
      // No answer.
    }
    question = nullptr;
    pending->Finish();
  }).detach();
  if (pending->WaitFor(kPatience)) {
    answer();
    return;
  }
  pending_ = std::move(pending);
  answer_ = std::move(answer);
  timer_.Start(kLookAgain);
}

void PrinterQuery::OnTimer() {
  if (!pending_ || !pending_->WaitFor(std::chrono::milliseconds(0))) return;
  const auto answer = std::move(answer_);
  GiveUp();
  answer();
}

}  // namespace mindloft
