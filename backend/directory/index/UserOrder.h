#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "backend/directory/index/IdSet.h"
#include "backend/directory/index/OrderBlocks.h"
#include "backend/directory/index/SearchTexts.h"

namespace mindloft {

/// All users in one ascending order: by one of their texts and the rules of a language, texts that these do
/// not tell apart by identifier.
class UserOrder {
 public:
  /// `texts` are folded as the rules want it.
  UserOrder(sqlite::Database& database, SearchTexts& texts, LanguageRules rules, Order order,
            std::size_t blockSize)
      : blocks_(database, rules, order), texts_(texts), rules_(rules), order_(order), blockSize_(blockSize) {}

  /// Drops what is remembered of the file.
  void Forget() { map_.reset(); }

  std::int64_t Count();
  /// The user's texts must be stored already. The user must not be in the order yet.
  void Insert(PackedId id, std::string_view text);
  /// The user's texts must still be the ones that it was inserted with.
  void Remove(PackedId id, std::string_view text);

  /// Takes all these users out in one pass over the blocks, whatever their texts are. `count` is how many of
  /// them the order must hold.
  void Remove(const IdSet& users, std::int64_t count);

  /// A place in the order; that of the end has the number of the blocks as its block.
  struct Place {
    std::size_t block = 0, offset = 0;
  };
  /// The place of this user, or the one where it would stand.
  Place PlaceOf(PackedId id, std::string_view text);
  /// The first place whose text begins with the letters of the prefix, and the first one behind it whose text
  /// does not.
  std::pair<Place, Place> PlacesOf(std::string_view prefix);

  std::int64_t CountBefore(Place place);
  /// The users from position `first` up to, not including, `last`.
  std::vector<ObjectId> Slice(std::int64_t first, std::int64_t last);

  /// The blocks in order, and the identifiers in one of them.
  const std::vector<OrderBlock>& Blocks();
  std::vector<PackedId> Ids(std::size_t block);

 private:
  /// The first place whose user is not before the sought one; `isBefore` is true for users up to it and
  /// false for all from it on.
  template <typename IsBefore>
  Place FirstNot(IsBefore isBefore);
  std::string KeyOf(PackedId id);
  void Split(std::size_t block, std::span<const PackedId> ids);
  void Shrink(std::size_t block, std::vector<PackedId> ids);

  OrderBlocks blocks_;
  SearchTexts& texts_;
  LanguageRules rules_;
  Order order_;
  std::size_t blockSize_;
  std::optional<std::vector<OrderBlock>> map_;
};

}  // namespace mindloft
