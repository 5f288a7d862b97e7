#include "backend/directory/index/UserOrder.h"

#include <algorithm>

#include "backend/directory/collation/Collator.h"
#include "backend/errors/Error.h"

namespace mindloft {
namespace {

// Blocks may grow to twice the size that they are built with, and shrink to a quarter of it.
constexpr std::size_t kGrowth = 2;
constexpr std::size_t kShrinkage = 4;

std::uint32_t NewNumber(const std::vector<OrderBlock>& map) {
  std::uint32_t number = 0;
  for (const auto& block : map) number = std::max(number, block.number + 1);
  return number;
}

}  // namespace

const std::vector<OrderBlock>& UserOrder::Blocks() {
  if (!map_) map_ = blocks_.ReadMap();
  return *map_;
}

std::int64_t UserOrder::Count() {
  return CountBefore({Blocks().size(), 0});
}

std::int64_t UserOrder::CountBefore(Place place) {
  auto count = static_cast<std::int64_t>(place.offset);
  for (std::size_t block = 0; block < place.block; ++block) count += Blocks()[block].count;
  return count;
}

std::vector<ObjectId> UserOrder::Slice(std::int64_t first, std::int64_t last) {
  std::vector<ObjectId> slice;
  std::int64_t start = 0;
  for (std::size_t block = 0; block < Blocks().size() && start < last; ++block) {
    std::int64_t count = Blocks()[block].count;
    if (start + count > first) {
      auto ids = Ids(block);
      slice.insert(slice.end(), ids.begin() + std::max<std::int64_t>(first - start, 0),
                   ids.begin() + std::min(last - start, count));
    }
    start += count;
  }
  return slice;
}

std::vector<PackedId> UserOrder::Ids(std::size_t block) {
  return blocks_.Read(Blocks().at(block));
}

template <typename IsBefore>
UserOrder::Place UserOrder::FirstNot(IsBefore isBefore) {
  std::size_t low = 0, high = Blocks().size();
  std::vector<PackedId> ids, candidate;
  while (low < high) {
    std::size_t middle = low + (high - low) / 2;
    ids = Ids(middle);
    if (ids.empty() || isBefore(ids.back())) {
      low = middle + 1;
    } else {
      high = middle;
      candidate = std::move(ids);
    }
  }
  auto at = std::partition_point(candidate.begin(), candidate.end(), isBefore);
  return {low, static_cast<std::size_t>(at - candidate.begin())};
}

std::string UserOrder::KeyOf(PackedId id) {
  return Collator::Of(rules_).SortKey(texts_.Key(id, order_));
}

UserOrder::Place UserOrder::PlaceOf(PackedId id, std::string_view text) {
  const auto key = Collator::Of(rules_).SortKey(text);
  return FirstNot([&](PackedId other) {
    if (other == id) return false;
    const auto otherKey = KeyOf(other);
    return otherKey != key ? otherKey < key : other < id;
  });
}

std::pair<UserOrder::Place, UserOrder::Place> UserOrder::PlacesOf(std::string_view prefix) {
  const auto start = Collator::Of(rules_).PrefixKey(prefix);
  auto compared = [&](PackedId id) { return KeyOf(id).compare(0, start.size(), start); };
  return {FirstNot([&](PackedId id) { return compared(id) < 0; }),
          FirstNot([&](PackedId id) { return compared(id) <= 0; })};
}

void UserOrder::Insert(PackedId id, std::string_view text) {
  Place place = PlaceOf(id, text);
  if (Blocks().empty()) map_->push_back({});
  if (place.block == map_->size()) {
    place.block = map_->size() - 1;
    place.offset = map_->back().count;
  }
  OrderBlock& block = (*map_)[place.block];
  std::vector<PackedId> ids;
  if (block.count > 0) ids = Ids(place.block);
  ids.insert(ids.begin() + static_cast<std::ptrdiff_t>(place.offset), id);
  block.count = static_cast<std::uint32_t>(ids.size());
  if (ids.size() > kGrowth * blockSize_) {
    Split(place.block, ids);
  } else {
    blocks_.Write(block.number, ids);
  }
  blocks_.WriteMap(*map_);
}

void UserOrder::Split(std::size_t block, std::span<const PackedId> ids) {
  auto half = ids.size() / 2;
  OrderBlock second{NewNumber(*map_), static_cast<std::uint32_t>(ids.size() - half)};
  (*map_)[block].count = static_cast<std::uint32_t>(half);
  blocks_.Write((*map_)[block].number, ids.first(half));
  blocks_.Write(second.number, ids.subspan(half));
  map_->insert(map_->begin() + static_cast<std::ptrdiff_t>(block) + 1, second);
}

void UserOrder::Remove(PackedId id, std::string_view text) {
  Place place = PlaceOf(id, text);
  std::vector<PackedId> ids;
  if (place.block < Blocks().size()) ids = Ids(place.block);
  if (place.offset >= ids.size() || ids[place.offset] != id) {
    throw Error(ErrorNumber::DirectoryDamaged, "user " + std::to_string(id) + " is not in its order");
  }
  ids.erase(ids.begin() + static_cast<std::ptrdiff_t>(place.offset));
  Shrink(place.block, std::move(ids));
  blocks_.WriteMap(*map_);
}

void UserOrder::Remove(const IdSet& users, std::int64_t count) {
  if (count == 0) return;
  for (std::size_t block = 0; block < Blocks().size();) {
    auto ids = Ids(block);
    const auto gone = std::erase_if(ids, [&](PackedId id) { return users.Has(id); });
    count -= static_cast<std::int64_t>(gone);
    const auto blocks = map_->size();
    if (gone > 0) Shrink(block, std::move(ids));
    // Where a block went, its place is that of another one now, which may hold more of the users.
    if (map_->size() == blocks) ++block;
  }
  if (count != 0) {
    throw Error(ErrorNumber::DirectoryDamaged, std::to_string(count) + " users are not in their order");
  }
  blocks_.WriteMap(*map_);
}

/// Writes the block that has become smaller, or joins it to a neighbour.
void UserOrder::Shrink(std::size_t block, std::vector<PackedId> ids) {
  auto& map = *map_;
  if (ids.size() < blockSize_ / kShrinkage && map.size() > 1) {
    std::size_t first = block + 1 < map.size() ? block : block - 1;
    auto other = Ids(first == block ? block + 1 : first);
    if (ids.size() + other.size() <= blockSize_) {
      if (first != block) ids.swap(other);
      ids.insert(ids.end(), other.begin(), other.end());
      blocks_.Remove(map[first + 1].number);
      map.erase(map.begin() + static_cast<std::ptrdiff_t>(first) + 1);
      block = first;
    }
  }
  if (ids.empty()) {
    blocks_.Remove(map[block].number);
    map.erase(map.begin() + static_cast<std::ptrdiff_t>(block));
    return;
  }
  map[block].count = static_cast<std::uint32_t>(ids.size());
  blocks_.Write(map[block].number, ids);
}

}  // namespace mindloft
