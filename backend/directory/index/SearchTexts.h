#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "backend/directory/index/FoldedUser.h"
#include "backend/directory/index/IdSet.h"
#include "backend/directory/sqlite/Database.h"

namespace mindloft {

/// The folded texts of all users in chunks of consecutive identifiers (table user_text), to be searched from
/// the first to the last: what a reader of the file can do faster than any lookup of short common texts.
class SearchTexts {
 public:
  explicit SearchTexts(sqlite::Database& database) : database_(database) {}
  static void CreateTable(sqlite::Database& database);

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

 private:
  sqlite::CachedStatement Select(std::int64_t chunk);
  void Write(std::int64_t chunk, const std::string& stored);
  sqlite::Database& database_;
  std::string key_;
};

}  // namespace mindloft
