#include "backend/directory/index/OrderBlocks.h"

#include <algorithm>
#include <string>

#include "backend/directory/index/Packed.h"

namespace mindloft {
namespace {

// The row's number of an order is made of its rules and its place among their orders; blocks of one order lie
// together in the file, for the upper half of their rows' numbers is the order's.
constexpr int kNumberBits = 32;
constexpr int kPlaceBits = 8;

}  // namespace

void OrderBlocks::CreateTables(sqlite::Database& database) {
  database.Execute(
      "CREATE TABLE user_sorting(id INTEGER PRIMARY KEY, blocks BLOB NOT NULL);"
      "CREATE TABLE user_sorting_block(id INTEGER PRIMARY KEY, users BLOB NOT NULL)");
}

OrderBlocks::OrderBlocks(sqlite::Database& database, LanguageRules rules, Order order)
    : database_(database),
      row_(static_cast<std::int64_t>(rules) << kPlaceBits | static_cast<std::int64_t>(PlaceOf(order))) {}

std::int64_t OrderBlocks::RowOf(std::uint32_t number) const {
  return row_ << kNumberBits | number;
}

std::vector<OrderBlock> OrderBlocks::ReadMap() {
  auto select = database_.Prepare("SELECT blocks FROM user_sorting WHERE id=?");
  select->BindAll(row_);
  std::vector<OrderBlock> map;
  if (!select->Step()) return map;
  std::string_view blob = select->BlobView(0);
  map.resize(blob.size() / (2 * kPackedSize));
  for (std::size_t i = 0; i < map.size(); ++i) {
    map[i] = {PackedNumber(blob, 2 * i), PackedNumber(blob, 2 * i + 1)};
  }
  return map;
}

void OrderBlocks::WriteMap(const std::vector<OrderBlock>& map) {
  std::string blob;
  blob.reserve(map.size() * 2 * kPackedSize);
  for (const auto& block : map) {
    AppendPacked(blob, block.number);
    AppendPacked(blob, block.count);
  }
  auto put = database_.Prepare("INSERT OR REPLACE INTO user_sorting(id,blocks) VALUES(?,?)");
  put->Bind(0, row_).BindBlob(1, blob).Run();
}

std::vector<PackedId> OrderBlocks::Read(const OrderBlock& block) {
  auto select = database_.Prepare("SELECT users FROM user_sorting_block WHERE id=?");
  select->BindAll(RowOf(block.number));
  std::string_view blob;
  if (select->Step()) blob = select->BlobView(0);
  if (blob.size() != block.count * kPackedSize) {
    throw Error(ErrorNumber::DirectoryDamaged, "a block of a user order is damaged");
  }
  std::vector<PackedId> ids(block.count);
  for (std::size_t i = 0; i < ids.size(); ++i) ids[i] = PackedNumber(blob, i);
  return ids;
}

void OrderBlocks::Write(std::uint32_t number, std::span<const PackedId> ids) {
  std::string blob;
  blob.reserve(ids.size() * kPackedSize);
  for (PackedId id : ids) AppendPacked(blob, id);
  auto put = database_.Prepare("INSERT OR REPLACE INTO user_sorting_block(id,users) VALUES(?,?)");
  put->Bind(0, RowOf(number)).BindBlob(1, blob).Run();
}

void OrderBlocks::Remove(std::uint32_t number) {
  database_.Prepare("DELETE FROM user_sorting_block WHERE id=?")->BindAll(RowOf(number)).Run();
}

void OrderBlocks::WriteAll(std::span<const PackedId> ids, std::size_t blockSize) {
  database_.Prepare("DELETE FROM user_sorting_block WHERE id>=? AND id<=?")
      ->BindAll(RowOf(0), RowOf(UINT32_MAX))
      .Run();
  std::vector<OrderBlock> map;
  while (!ids.empty()) {
    const auto block = ids.first(std::min(ids.size(), blockSize));
    ids = ids.subspan(block.size());
    map.push_back({static_cast<std::uint32_t>(map.size()), static_cast<std::uint32_t>(block.size())});
    Write(map.back().number, block);
  }
  WriteMap(map);
}

void OrderBlocks::RemoveAll(sqlite::Database& database, std::int64_t rules) {
  const auto first = rules << kPlaceBits, end = (rules + 1) << kPlaceBits;
  database.Prepare("DELETE FROM user_sorting_block WHERE id>=? AND id<?")
      ->BindAll(first << kNumberBits, end << kNumberBits)
      .Run();
  database.Prepare("DELETE FROM user_sorting WHERE id>=? AND id<?")->BindAll(first, end).Run();
}

}  // namespace mindloft
