#include "backend/directory/index/IndexImage.h"

#include <algorithm>
#include <span>

#include "backend/directory/index/OrderBlocks.h"
#include "backend/directory/index/Packed.h"
#include "backend/directory/index/TextChunk.h"

namespace mindloft {
namespace {

/// The first bytes of a key as a number that compares as they do.
std::uint64_t StartOf(std::string_view key) {
  std::uint64_t start = 0;
  for (std::size_t i = 0; i < sizeof start; ++i) {
    start = start << 8 | (i < key.size() ? static_cast<unsigned char>(key[i]) : 0U);
  }
  return start;
}

}  // namespace

void IndexImage::Add(ObjectId id, const FoldedUser& user) {
  rows_.push_back({PackId(id), texts_.size()});
  TextChunk::AppendUser(texts_, user);
}

void IndexImage::AddStoredUsers(sqlite::Database& database) {
  auto select = database.Prepare("SELECT id,name,full_name,description FROM user ORDER BY id");
  while (select->Step()) {
    Add(select->Int(0), FoldedUser::Of(select->TextView(1), select->TextView(2), select->TextView(3)));
  }
}

std::string_view IndexImage::LineOf(std::size_t row) const {
  std::size_t end = row + 1 < rows_.size() ? rows_[row + 1].begin : texts_.size();
  return std::string_view(texts_).substr(rows_[row].begin, end - rows_[row].begin);
}

std::string_view IndexImage::Key(std::size_t row, Order order) const {
  return TextChunk::KeyIn(LineOf(row), order);
}

void IndexImage::ForEachChunk(
    const std::function<void(std::int64_t number, const std::string& stored)>& visit) const {
  TextChunkWriter writer;
  for (std::size_t row = 0; row < rows_.size();) {
    const auto chunk = rows_[row].id / TextChunk::kUsers;
    for (; row < rows_.size() && rows_[row].id / TextChunk::kUsers == chunk; ++row) {
      writer.Add(rows_[row].id % TextChunk::kUsers, LineOf(row));
    }
    visit(static_cast<std::int64_t>(chunk), writer.Finish());
  }
}

std::vector<PackedId> IndexImage::Sorted(Order order) const {
  // Nearly all comparisons are decided by the first bytes, which lie side by side.
  struct SortRow {
    std::uint64_t start;
    std::uint32_t row;
  };
  std::vector<SortRow> sorted(rows_.size());
  for (std::size_t i = 0; i < sorted.size(); ++i) {
    sorted[i] = {StartOf(Key(i, order)), static_cast<std::uint32_t>(i)};
  }
  std::sort(sorted.begin(), sorted.end(), [&](const SortRow& a, const SortRow& b) {
    if (a.start != b.start) return a.start < b.start;
    auto keyOfA = Key(a.row, order), keyOfB = Key(b.row, order);
    return keyOfA != keyOfB ? keyOfA < keyOfB : a.row < b.row;  // rows ascend by identifier
  });
  std::vector<PackedId> ids;
  ids.reserve(sorted.size());
  for (const auto& row : sorted) ids.push_back(rows_[row.row].id);
  return ids;
}

void IndexImage::Write(sqlite::Database& database, std::size_t blockSize) const {
  database.Execute("DELETE FROM user_text");
  auto insert = database.Prepare("INSERT INTO user_text(chunk,texts) VALUES(?,?)");
  ForEachChunk([&](std::int64_t number, const std::string& stored) {
    insert->Bind(0, number).BindBlob(1, stored).Run();
  });
  for (Order order : kOrders) {
    OrderBlocks blocks(database, order);
    blocks.RemoveAll();
    std::vector<OrderBlock> map;
    const auto sorted = Sorted(order);
    for (std::span<const PackedId> rest = sorted; !rest.empty();) {
      auto ids = rest.first(std::min(rest.size(), blockSize));
      rest = rest.subspan(ids.size());
      map.push_back({static_cast<std::uint32_t>(map.size()), static_cast<std::uint32_t>(ids.size())});
      blocks.Write(map.back().number, ids);
    }
    blocks.WriteMap(map);
  }
}

}  // namespace mindloft
