#pragma once

#include <wx/timer.h>

#include <functional>
#include <memory>

namespace mindloft {

/// Asks the printers something that can take long, without keeping the window from its user: the question is
/// put on a thread of its own, and when the answer is not there within a moment it comes later, from a timer
/// of the window's own thread. A question that nobody waits for any more is left to end by itself.
class PrinterQuery {
 public:
  PrinterQuery();
  ~PrinterQuery();
  PrinterQuery(const PrinterQuery&) = delete;
  PrinterQuery& operator=(const PrinterQuery&) = delete;

  /// Gives up an earlier question. `question` runs on another thread and touches nothing of this one; what it
  /// throws counts as no answer. `answer` is called on this thread with what it returned (a default one where
  /// there is none): before this returns when it is there in time.
  template <typename Answer>
  void Ask(std::function<Answer()> question, std::function<void(Answer)> answer) {
    auto told = std::make_shared<Answer>();
    Start([question = std::move(question), told] { *told = question(); },
          [answer = std::move(answer), told] { answer(std::move(*told)); });
  }
  /// Whether an answer is still to come.
  bool IsAsking() const { return pending_ != nullptr; }
  void GiveUp();

 private:
  struct Pending;

  void Start(std::function<void()> question, std::function<void()> answer);
  void OnTimer();

  std::function<void()> answer_;
  std::shared_ptr<Pending> pending_;
  wxTimer timer_;
};

}  // namespace mindloft
