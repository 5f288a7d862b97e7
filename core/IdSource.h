#pragma once

#include <cstdint>

namespace mindloft {

/// Identifiers that no other object of the process has: the numbers that follow the given one.
class IdSource {
 public:
  explicit IdSource(std::int32_t last = 0) : last_(last) {}
  /// Overflow past the largest 32-bit value, now and from then on.
  std::int32_t Next();

 private:
  std::int32_t last_;
};

}  // namespace mindloft
