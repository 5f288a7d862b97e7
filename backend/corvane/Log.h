#pragma once

#include <memory>

#include "backend/corvane/View.h"

namespace mindloft::Corvane {

/// The server's log of changes.
class Log {
 public:
  explicit Log(std::shared_ptr<Session> session) : session_(std::move(session)) {}
  JournalView View() const;

 private:
  std::shared_ptr<Session> session_;
};

}  // namespace mindloft::Corvane
