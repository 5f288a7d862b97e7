#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "backend/directory/index/FoldedUser.h"
#include "backend/directory/index/IdSet.h"
#include "backend/directory/index/UserOrder.h"

namespace mindloft {

/// Some of the users, to be read in any order. Remembered are only a bit for each user and, for each order
/// that was asked for, how many of the selected stand before each of its blocks: a few hundred kilobytes for
/// millions of users, where a list of the selected would be megabytes.
class Selection {
 public:
  explicit Selection(IdSet ids) : ids_(std::move(ids)), count_(ids_.Count()) {}

  const IdSet& Ids() const { return ids_; }
  std::int64_t Count() const { return count_; }
  /// How many of the selected stand before this place.
  std::int64_t CountBefore(UserOrder& users, Order order, UserOrder::Place place);
  /// The selected from position `first` up to, not including, `last`, ascending.
  std::vector<ObjectId> Slice(UserOrder& users, Order order, std::int64_t first, std::int64_t last);

 private:
  /// For each block the selected before it, and at last all of them.
  const std::vector<std::uint32_t>& Starts(UserOrder& users, Order order);

  IdSet ids_;
  std::int64_t count_;
  std::array<std::vector<std::uint32_t>, kOrders.size()> starts_;
};

}  // namespace mindloft
