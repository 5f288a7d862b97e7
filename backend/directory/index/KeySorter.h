#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "backend/directory/collation/Collator.h"
#include "backend/directory/index/IdSet.h"

namespace mindloft {

/// Sorts many users by a text of theirs, texts that the rules do not tell apart by identifier. Holds the sort
/// keys, about 50 bytes for a short text.
class KeySorter {
 public:
  /// `users`: how many are to come.
  KeySorter(LanguageRules rules, std::size_t users) : collator_(Collator::Of(rules)) { rows_.reserve(users); }

  void Add(PackedId id, std::string_view folded);
  /// Those added so far, which it then forgets.
  std::vector<PackedId> TakeSorted();

 private:
  /// Nearly all comparisons are decided by the first bytes, which lie side by side.
  struct Row {
    std::uint64_t start;  ///< the key's first bytes as a number that compares as they do
    const char* rest;     ///< the others, ended by a zero, which no key holds
    PackedId id;
  };
  const char* Kept(std::string_view rest);

  const Collator& collator_;
  std::vector<Row> rows_;
  std::deque<std::string> rests_;  ///< of limited size, so that none is moved
};

}  // namespace mindloft
