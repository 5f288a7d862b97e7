#include "backend/directory/index/OrderBlocks.h"

#include <string>

#include "backend/directory/index/Packed.h"

namespace mindloft {
namespace {

constexpr int kNumberBits = 32;

}  // namespace

void OrderBlocks::CreateTables(sqlite::Database& database) {
  database.Execute(
      "CREATE TABLE user_order(ord INTEGER PRIMARY KEY, blocks BLOB NOT NULL);"
      "CREATE TABLE user_order_block(id INTEGER PRIMARY KEY, users BLOB NOT NULL)");
}

// Blocks of one order lie together in the file: the order is the upper half of the row's number.
std::int64_t OrderBlocks::RowOf(std::uint32_t number) const {
  return static_cast<std::int64_t>(PlaceOf(order_)) << kNumberBits | number;
}

std::vector<OrderBlock> OrderBlocks::ReadMap() {
  auto select = database_.Prepare("SELECT blocks FROM user_order WHERE ord=?");
  select->BindAll(static_cast<std::int64_t>(PlaceOf(order_)));
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
  auto put = database_.Prepare("INSERT OR REPLACE INTO user_order(ord,blocks) VALUES(?,?)");
  put->Bind(0, static_cast<std::int64_t>(PlaceOf(order_))).BindBlob(1, blob).Run();
}

std::vector<PackedId> OrderBlocks::Read(const OrderBlock& block) {
  auto select = database_.Prepare("SELECT users FROM user_order_block WHERE id=?");
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
  auto put = database_.Prepare("INSERT OR REPLACE INTO user_order_block(id,users) VALUES(?,?)");
  put->Bind(0, RowOf(number)).BindBlob(1, blob).Run();
}

void OrderBlocks::Remove(std::uint32_t number) {
  database_.Prepare("DELETE FROM user_order_block WHERE id=?")->BindAll(RowOf(number)).Run();
}

void OrderBlocks::RemoveAll() {
  auto remove = database_.Prepare("DELETE FROM user_order_block WHERE id>=? AND id<=?");
  remove->BindAll(RowOf(0), RowOf(UINT32_MAX)).Run();
}

}  // namespace mindloft
