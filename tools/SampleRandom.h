#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace mindloft {

/// Numbers that look random and are the same for a seed on every platform (SplitMix64: Steele, Lea, Flood,
/// 2014).
class SampleRandom {
 public:
  explicit SampleRandom(std::uint64_t seed) : state_(seed) {}

  std::uint64_t Next() {
    std::uint64_t z = state_ += 0x9E3779B97F4A7C15;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EB;
    return z ^ (z >> 31);
  }
  /// From 0 to `count` - 1; `count` is at most 2^32.
  std::uint64_t Below(std::uint64_t count) { return (Next() >> 32) * count >> 32; }
  template <typename Item>
  const Item& Pick(std::span<const Item> items) {
    return items[Below(items.size())];
  }

 private:
  std::uint64_t state_;
};

}  // namespace mindloft
