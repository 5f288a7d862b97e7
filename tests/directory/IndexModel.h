#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "backend/directory/Query.h"
#include "backend/directory/collation/LanguageRules.h"
#include "backend/directory/sqlite/Database.h"

namespace mindloft::test {

/// A new directory file with empty tables.
std::unique_ptr<sqlite::Database> MakeEmptyTables(const std::filesystem::path& file);
/// A user in the user table only.
void StoreUser(sqlite::Database& database, const UserRecord& user);

/// What the user index has to answer, in the plainest way: all users are looked at for each question.
struct IndexModel {
  std::map<ObjectId, UserRecord> users;
  /// The members of each collection that has a scope; the collections "without" are made of them.
  std::map<ObjectId, std::vector<ObjectId>> domainUsers, groupMembers, roleMembers;
  std::map<ObjectId, ObjectId> domainOfGroup;

  std::vector<ObjectId> Rows(const Query& query, LanguageRules rules = LanguageRules::Neutral) const;
  std::int64_t FindPrefix(const Query& query, const std::string& prefix, std::int64_t from,
                          LanguageRules rules = LanguageRules::Neutral) const;

 private:
  bool InCollection(const Query& query, ObjectId user) const;
};

}  // namespace mindloft::test
