#include "backend/directory/index/SearchTexts.h"

#include "backend/directory/index/TextFinder.h"
#include "backend/errors/Error.h"

namespace mindloft {
namespace {

constexpr std::size_t kUsers = TextChunk::kUsers;

std::int64_t ChunkOf(PackedId id) {
  return id / kUsers;
}
std::size_t SlotOf(PackedId id) {
  return id % kUsers;
}

/// Fewer chunks than these are fetched one by one; more are read faster all in a row.
constexpr std::size_t kFewChunks = 400;

/// More chunks than there are identifiers.
constexpr std::int64_t kChunksOfFolding = std::int64_t{1} << 32;

void SearchChunk(const TextFinder& finder, std::int64_t number, const TextChunk& chunk, IdSet& found) {
  std::string_view texts = chunk.Texts();
  std::size_t slot = 0;
  for (std::size_t at = finder.Find(texts, 0); at != std::string_view::npos; at = finder.Find(texts, at)) {
    while (slot < kUsers && chunk.EndOf(slot) <= at) ++slot;
    if (slot == kUsers) return;
    found.Add(static_cast<PackedId>(static_cast<std::size_t>(number) * kUsers + slot));
    at = chunk.EndOf(slot);
  }
}

}  // namespace

// The chunks of one folding lie together in the file.
std::int64_t SearchTexts::RowOf(Folding folding, std::int64_t chunk) {
  return static_cast<std::int64_t>(folding) * kChunksOfFolding + chunk;
}

sqlite::CachedStatement SearchTexts::Select(std::int64_t chunk) {
  auto select = database_.Prepare("SELECT texts FROM user_folded WHERE chunk=?");
  select->BindAll(RowOf(chunk));
  return select;
}

void SearchTexts::Write(std::int64_t chunk, const std::string& stored) {
  if (TextChunk(stored).Empty()) {
    database_.Prepare("DELETE FROM user_folded WHERE chunk=?")->BindAll(RowOf(chunk)).Run();
    return;
  }
  auto put = database_.Prepare("INSERT OR REPLACE INTO user_folded(chunk,texts) VALUES(?,?)");
  put->Bind(0, RowOf(chunk)).BindBlob(1, stored).Run();
}

std::optional<FoldedUser> SearchTexts::Find(PackedId id) {
  auto select = Select(ChunkOf(id));
  if (!select->Step()) return std::nullopt;
  return TextChunk(select->BlobView(0)).UserAt(SlotOf(id));
}

std::string_view SearchTexts::Key(PackedId id, Order order) {
  auto select = Select(ChunkOf(id));
  if (select->Step()) {
    if (auto key = TextChunk(select->BlobView(0)).KeyAt(SlotOf(id), order)) {
      key_ = *key;
      return key_;
    }
  }
  throw Error(ErrorNumber::DirectoryDamaged, "user " + std::to_string(id) + " has no search texts");
}

void SearchTexts::Put(PackedId id, const FoldedUser* user) {
  std::string changed;
  {
    auto select = Select(ChunkOf(id));
    TextChunk chunk(select->Step() ? select->BlobView(0) : std::string_view());
    changed = chunk.With(SlotOf(id), user);
  }
  Write(ChunkOf(id), changed);
}

std::int64_t SearchTexts::Remove(const IdSet& users) {
  std::int64_t removed = 0;
  users.ForEachStretch(kUsers, [&](std::size_t number) {
    const auto chunk = static_cast<std::int64_t>(number);
    std::string changed;
    {
      auto select = Select(chunk);
      if (!select->Step()) return;
      const auto stays = [&](std::size_t slot) {
        return !users.Has(static_cast<PackedId>(number * kUsers + slot));
      };
      std::size_t gone = 0;
      changed = TextChunk(select->BlobView(0)).Only(stays, gone);
      if (gone == 0) return;
      removed += static_cast<std::int64_t>(gone);
    }
    Write(chunk, changed);
  });
  return removed;
}

IdSet SearchTexts::Search(const std::string& text, const IdSet* within) {
  const TextFinder finder(text);
  IdSet found;
  std::vector<std::int64_t> few;
  bool isFew = false;
  if (within) {
    std::size_t chunks = 0;
    within->ForEachStretch(kUsers, [&](std::size_t number) {
      if (++chunks <= kFewChunks) few.push_back(static_cast<std::int64_t>(number));
    });
    isFew = chunks <= kFewChunks;
  }
  if (isFew) {
    auto select = database_.Prepare("SELECT texts FROM user_folded WHERE chunk=?");
    for (auto number : few) {
      select->Reset();
      select->BindAll(RowOf(number));
      if (select->Step()) SearchChunk(finder, number, TextChunk(select->BlobView(0)), found);
    }
  } else {
    ForEachChunk(
        [&](std::int64_t number, const TextChunk& chunk) { SearchChunk(finder, number, chunk, found); });
  }
  if (within) found.KeepOnly(*within);
  return found;
}

void SearchTexts::ForEachChunk(const std::function<void(std::int64_t, const TextChunk&)>& visit) {
  auto select =
      database_.Prepare("SELECT chunk,texts FROM user_folded WHERE chunk>=?1 AND chunk<?2 ORDER BY chunk");
  const auto first = RowOf(0);
  select->BindAll(first, RowOf(kChunksOfFolding));
  while (select->Step()) visit(select->Int(0) - first, TextChunk(select->BlobView(1)));
}

void SearchTexts::RemoveAll() {
  database_.Prepare("DELETE FROM user_folded WHERE chunk>=? AND chunk<?")
      ->BindAll(RowOf(0), RowOf(kChunksOfFolding))
      .Run();
}

}  // namespace mindloft
