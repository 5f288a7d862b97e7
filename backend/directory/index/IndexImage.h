#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "backend/directory/index/FoldedUser.h"
#include "backend/directory/index/IdSet.h"
#include "backend/directory/sqlite/Database.h"

namespace mindloft {

/// What the index of a whole directory has to be, made in memory: to build it at once, or to compare. Holds
/// the folded texts of all users while it lives, about 100 bytes for each.
class IndexImage {
 public:
  /// The folding of the users that are added; only rules of the same folding can sort them.
  explicit IndexImage(Folding folding = Folding::Neutral) : folding_(folding) {}

  /// Users ascend by identifier.
  void Add(ObjectId id, const FoldedUser& user);
  /// Adds all users of the user table.
  void AddStoredUsers(sqlite::Database& database);

  /// Calls `visit` with the number and the stored form of each chunk of search texts, ascending.
  void ForEachChunk(const std::function<void(std::int64_t number, const std::string& stored)>& visit) const;
  /// All users in this order.
  std::vector<PackedId> Sorted(LanguageRules rules, Order order) const;

  /// Replaces the stored index by that of the neutral rules; must run inside the caller's write transaction.
  /// `blockSize`: users in a block of an order.
  void Write(sqlite::Database& database, std::size_t blockSize) const;

 private:
  struct Row {
    PackedId id;
    std::uint64_t begin;  ///< of its texts
  };
  std::string_view LineOf(std::size_t row) const;
  std::string_view Key(std::size_t row, Order order) const;

  Folding folding_;
  std::string texts_;
  std::vector<Row> rows_;
};

}  // namespace mindloft
