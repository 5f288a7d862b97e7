#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "backend/directory/index/FoldedUser.h"
#include "backend/directory/index/IdSet.h"
#include "backend/directory/sqlite/Database.h"

namespace mindloft {

/// One stretch of an order: the number of its row, and how many users it holds.
struct OrderBlock {
  std::uint32_t number = 0;
  std::uint32_t count = 0;
};

/// The stored form of one order by the rules of one language. A block is a row of packed identifiers (table
/// user_sorting_block); one row per order (table user_sorting) lists the blocks in order, so that a position
/// is found without reading them.
class OrderBlocks {
 public:
  OrderBlocks(sqlite::Database& database, LanguageRules rules, Order order);
  static void CreateTables(sqlite::Database& database);

  std::vector<OrderBlock> ReadMap();
  void WriteMap(const std::vector<OrderBlock>& map);
  /// DirectoryDamaged when the row is missing or holds another number of users.
  std::vector<PackedId> Read(const OrderBlock& block);
  void Write(std::uint32_t number, std::span<const PackedId> ids);
  void Remove(std::uint32_t number);
  /// Replaces the whole order.
  void WriteAll(std::span<const PackedId> ids, std::size_t blockSize);
  /// Removes all orders by the rules of this number, known or not.
  static void RemoveAll(sqlite::Database& database, std::int64_t rules);

 private:
  std::int64_t RowOf(std::uint32_t number) const;
  sqlite::Database& database_;
  std::int64_t row_;  ///< its row in user_sorting
};

}  // namespace mindloft
