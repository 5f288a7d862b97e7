#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace mindloft {

/// A user's identifier as the index stores it.
using PackedId = std::uint32_t;

/// A set of user identifiers, one bit for each identifier up to the greatest one in it.
class IdSet {
 public:
  void Add(PackedId id) {
    std::size_t word = id / 64;
    if (word >= words_.size()) words_.resize(word + 1);
    words_[word] |= std::uint64_t{1} << (id % 64);
  }
  bool Has(PackedId id) const {
    std::size_t word = id / 64;
    return word < words_.size() && (words_[word] >> (id % 64) & 1) != 0;
  }
  void KeepOnly(const IdSet& other) {
    if (words_.size() > other.words_.size()) words_.resize(other.words_.size());
    for (std::size_t i = 0; i < words_.size(); ++i) words_[i] &= other.words_[i];
  }
  void Take(const IdSet& other) {
    for (std::size_t i = 0; i < words_.size() && i < other.words_.size(); ++i) words_[i] &= ~other.words_[i];
  }
  std::int64_t Count() const {
    std::int64_t count = 0;
    for (auto word : words_) count += std::popcount(word);
    return count;
  }
  /// Calls `visit` with the number of each stretch of `length` identifiers (a multiple of 64) that holds one
  /// of the set.
  template <typename Visit>
  void ForEachStretch(std::size_t length, Visit visit) const {
    const std::size_t step = length / 64;
    for (std::size_t word = 0; word < words_.size();) {
      if (words_[word] == 0) {
        ++word;
        continue;
      }
      visit(word / step);
      word = (word / step + 1) * step;
    }
  }

 private:
  std::vector<std::uint64_t> words_;
};

}  // namespace mindloft
