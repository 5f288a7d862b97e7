#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "backend/directory/Changes.h"
#include "backend/directory/Query.h"
#include "backend/directory/collation/LanguageRules.h"
#include "backend/directory/sqlite/Database.h"

namespace mindloft {

/// The listed texts of one user.
struct UserTexts {
  std::string_view name, fullName, description;
};

/// Thrown by reads of a file that does not keep the users sorted by these rules (yet, or no longer: a program
/// with another edition of them has changed users). Build them outside of all transactions and ask again.
struct OrdersMissing {
  LanguageRules rules;
};

/// The positions of all users in every offered order, by the rules of each language that somebody has used in
/// this file, and the search for a text in them, both in tables of the same file that change in the same
/// transaction as the users.
///
/// Changes must run inside the caller's write transaction; whether before or after the change of the user
/// table does not matter. Reads see the file's present state, also after changes of another process; what
/// they remember is dropped when the file has changed. What is remembered is about 1.2 MB for a million
/// users.
class UserIndex {
 public:
  /// Users in a block of an order when it is built: 4000 bytes, so that the blocks of a built index fill
  /// their pages.
  static constexpr std::size_t kBlockSize = 1000;

  /// The database must outlive the index. A smaller `blockSize` is for tests.
  explicit UserIndex(sqlite::Database& database, std::size_t blockSize = kBlockSize);
  ~UserIndex();

  /// Makes the tables in which the orders of users have been kept since schema 2, and takes over what schema
  /// 1 had of them: the search texts. Where there are users, their orders have to be built.
  static void UpgradeTables(sqlite::Database& database);

  /// Whether the file keeps the users sorted by these rules.
  bool Has(LanguageRules rules);
  /// Sorts all users by these rules, and keeps them so from then on; see OrderBuilder.
  void Build(LanguageRules rules, const Progress& progress);

  /// Overflow for an identifier beyond 32 bits.
  void Insert(ObjectId id, const UserTexts& texts);
  /// The index knows the user's texts so far by itself.
  void Change(ObjectId id, const UserTexts& before, const UserTexts& after);
  /// Many at once cost far less than one by one.
  void Remove(std::span<const ObjectId> users);
  /// Builds all texts and the orders by the neutral rules anew from the user table.
  void Rebuild();
  /// What is wrong, in words; empty when the index agrees with the user table.
  std::vector<std::string> Check();

  /// A query on a collection of users; TypeMismatch for another one. Scoped collections are read from the
  /// membership tables.
  /// OrdersMissing.
  std::int64_t Count(const Query& query, LanguageRules rules = LanguageRules::Neutral);
  std::vector<ObjectId> Page(const Query& query, std::int64_t first, std::int64_t count,
                             LanguageRules rules = LanguageRules::Neutral);
  std::int64_t FindPrefix(const Query& query, std::string_view prefix, std::int64_t from,
                          LanguageRules rules = LanguageRules::Neutral);
  std::int64_t PositionOf(const Query& query, ObjectId user, LanguageRules rules = LanguageRules::Neutral);
  /// The same for many users at once.
  std::vector<std::int64_t> PositionsOf(const Query& query, const std::vector<ObjectId>& users,
                                        LanguageRules rules = LanguageRules::Neutral);

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace mindloft
