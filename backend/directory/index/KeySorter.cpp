#include "backend/directory/index/KeySorter.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace mindloft {

void KeySorter::Add(PackedId id, std::string_view folded) {
  const std::string key = collator_.SortKey(folded);
  constexpr std::size_t kStart = sizeof(Row::start);
  std::uint64_t start = 0;
  for (std::size_t i = 0; i < kStart; ++i) {
    start = start << 8 | (i < key.size() ? static_cast<unsigned char>(key[i]) : 0U);
  }
  rows_.push_back({start, key.size() > kStart ? Kept(std::string_view(key).substr(kStart)) : "", id});
}

const char* KeySorter::Kept(std::string_view rest) {
  constexpr std::size_t kSize = std::size_t{1} << 20;
  if (rests_.empty() || rests_.back().capacity() - rests_.back().size() <= rest.size()) {
    rests_.emplace_back().reserve(std::max(kSize, rest.size() + 1));
  }
  auto& block = rests_.back();
  const auto at = block.size();
  block.append(rest).push_back('\0');
  return block.data() + at;
}

std::vector<PackedId> KeySorter::TakeSorted() {
  auto rows = std::exchange(rows_, {});
  const auto rests = std::exchange(rests_, {});
  std::sort(rows.begin(), rows.end(), [](const Row& a, const Row& b) {
    if (a.start != b.start) return a.start < b.start;
    const int compared = std::strcmp(a.rest, b.rest);
    return compared != 0 ? compared < 0 : a.id < b.id;
  });
  std::vector<PackedId> ids;
  ids.reserve(rows.size());
  for (const auto& row : rows) ids.push_back(row.id);
  return ids;
}

}  // namespace mindloft
