#pragma once

#include <cstdint>

namespace mindloft {

/// How long the back end still refuses to look at a password, after repeated failures.
class LoginDelay {
 public:
  void Start(int seconds);
  /// Whole seconds, rounded up; 0 when one may try again.
  int SecondsLeft() const;

 private:
  std::int64_t end_ = 0;  ///< of the monotonic clock, milliseconds
};

}  // namespace mindloft
