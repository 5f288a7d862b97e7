#include "backend/directory/index/Selection.h"

#include <algorithm>

namespace mindloft {

const std::vector<std::uint32_t>& Selection::Starts(UserOrder& users, Order order) {
  auto& starts = starts_[PlaceOf(order)];
  if (!starts.empty()) return starts;
  std::vector<std::uint32_t> counted = {0};
  for (std::size_t block = 0; block < users.Blocks().size(); ++block) {
    std::uint32_t count = 0;
    for (PackedId id : users.Ids(block)) count += ids_.Has(id) ? 1 : 0;
    counted.push_back(counted.back() + count);
  }
  return starts = std::move(counted);
}

std::int64_t Selection::CountBefore(UserOrder& users, Order order, UserOrder::Place place) {
  std::int64_t count = Starts(users, order)[place.block];
  if (place.offset == 0) return count;
  auto ids = users.Ids(place.block);
  return count + std::count_if(ids.begin(), ids.begin() + static_cast<std::ptrdiff_t>(place.offset),
                               [&](PackedId id) { return ids_.Has(id); });
}

std::vector<ObjectId> Selection::Slice(UserOrder& users, Order order, std::int64_t first, std::int64_t last) {
  std::vector<ObjectId> slice;
  const auto& starts = Starts(users, order);
  // The last block that starts at or before `first` holds it.
  auto block =
      static_cast<std::size_t>(std::upper_bound(starts.begin(), starts.end(), first) - starts.begin()) - 1;
  for (; block + 1 < starts.size() && starts[block] < last; ++block) {
    if (starts[block] == starts[block + 1]) continue;
    std::int64_t position = starts[block];
    for (PackedId id : users.Ids(block)) {
      if (!ids_.Has(id)) continue;
      if (position >= first && position < last) slice.push_back(id);
      ++position;
    }
  }
  return slice;
}

}  // namespace mindloft
