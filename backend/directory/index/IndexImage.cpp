#include "backend/directory/index/IndexImage.h"

#include "backend/directory/index/KeySorter.h"
#include "backend/directory/index/OrderBlocks.h"
#include "backend/directory/index/Packed.h"
#include "backend/directory/index/SearchTexts.h"
#include "backend/directory/index/StoredRules.h"
#include "backend/directory/index/TextChunk.h"

namespace mindloft {
void IndexImage::Add(ObjectId id, const FoldedUser& user) {
  rows_.push_back({PackId(id), texts_.size()});
  TextChunk::AppendUser(texts_, user);
}

void IndexImage::AddStoredUsers(sqlite::Database& database) {
  auto select = database.Prepare("SELECT id,name,full_name,description FROM user ORDER BY id");
  while (select->Step()) {
    Add(select->Int(0),
        FoldedUser::Of(select->TextView(1), select->TextView(2), select->TextView(3), folding_));
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

std::vector<PackedId> IndexImage::Sorted(LanguageRules rules, Order order) const {
  KeySorter sorter(rules, rows_.size());
  for (std::size_t row = 0; row < rows_.size(); ++row) sorter.Add(rows_[row].id, Key(row, order));
  return sorter.TakeSorted();
}

void IndexImage::Write(sqlite::Database& database, std::size_t blockSize) const {
  StoredRules stored(database);
  stored.RemoveAll();
  SearchTexts texts(database, folding_);
  texts.RemoveAll();
  ForEachChunk([&](std::int64_t number, const std::string& chunk) { texts.Write(number, chunk); });
  for (Order order : kOrders) {
    OrderBlocks(database, LanguageRules::Neutral, order)
        .WriteAll(Sorted(LanguageRules::Neutral, order), blockSize);
  }
  stored.Add(LanguageRules::Neutral);
}

}  // namespace mindloft
