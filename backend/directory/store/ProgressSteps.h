#pragma once

#include <cstdint>

#include "backend/directory/Changes.h"
#include "backend/errors/Error.h"

namespace mindloft {

/// Reports a long change's progress every few hundred rows.
class ProgressSteps {
 public:
  /// Rows between two reports: often enough for a smooth bar and a quick cancel, too rare to cost time.
  static constexpr std::int64_t kStep = 250;

  ProgressSteps(const Progress& progress, std::int64_t total) : progress_(progress), total_(total) {
    Report();
  }
  /// Throws Cancelled. No statement may be in the middle of its rows: the report may read the directory.
  void Done(std::int64_t rows) {
    done_ += rows;
    if (done_ - reported_ >= kStep || done_ == total_) Report();
  }

 private:
  void Report() {
    reported_ = done_;
    if (progress_ && !progress_(done_, total_)) throw Error(ErrorNumber::Cancelled);
  }
  const Progress& progress_;
  std::int64_t total_, done_ = 0, reported_ = 0;
};

}  // namespace mindloft
