#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "backend/directory/index/FoldedUser.h"
#include "backend/directory/index/IdSet.h"
#include "backend/directory/index/TextChunk.h"
#include "backend/directory/sqlite/Database.h"

namespace mindloft {

/// The texts of all users, folded in one way, in chunks of consecutive identifiers (table user_folded), to be
/// searched from the first to the last: what a reader of the file can do faster than any lookup of short
/// common texts.
class SearchTexts {
 public:
  SearchTexts(sqlite::Database& database, Folding folding) : database_(database), folding_(folding) {}

  std::optional<FoldedUser> Find(PackedId id);
  /// One key of a user that the orders know; DirectoryDamaged when it has no texts. Valid until the next
  /// call.
  std::string_view Key(PackedId id, Order order);
  /// Nullptr: the user goes.
  void Put(PackedId id, const FoldedUser* user);
  /// Takes all these users out and returns how many of them there were.
  std::int64_t Remove(const IdSet& users);
  /// The users one of whose texts holds the folded, not empty `text`; only those of `within` when there is
  /// one.
  IdSet Search(const std::string& text, const IdSet* within);

  /// Calls `visit` with the number and the stored form of each chunk, ascending. `visit` must not come back
  /// here.
  void ForEachChunk(const std::function<void(std::int64_t chunk, const TextChunk& texts)>& visit);
  /// Replaces or, when it is empty, removes a chunk.
  void Write(std::int64_t chunk, const std::string& stored);
  void RemoveAll();

  /// The number of the row that holds a chunk.
  static std::int64_t RowOf(Folding folding, std::int64_t chunk);

 private:
  std::int64_t RowOf(std::int64_t chunk) const { return RowOf(folding_, chunk); }
  sqlite::CachedStatement Select(std::int64_t chunk);
  sqlite::Database& database_;
  Folding folding_;
  std::string key_;
};

}  // namespace mindloft
