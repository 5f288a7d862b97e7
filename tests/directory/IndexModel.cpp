#include "IndexModel.h"

#include <unicode/ucol.h>

#include <algorithm>
#include <functional>

#include "backend/directory/FoldedText.h"
#include "backend/directory/collation/Collator.h"
#include "backend/directory/file/DirectoryFile.h"
#include "backend/directory/file/Schema.h"

namespace mindloft::test {
namespace {

std::string TextOf(const UserRecord& user, Order order, LanguageRules rules) {
  return FoldedText(order == Order::Name       ? user.name
                    : order == Order::FullName ? user.fullName
                                               : user.description,
                    FoldingOf(rules));
}

/// The comparison of two texts by the library itself.
class DirectComparison {
 public:
  explicit DirectComparison(LanguageRules rules) {
    static constexpr const char* kLocales[] = {"root", "zh", "ja", "ar", "tr"};
    UErrorCode status = U_ZERO_ERROR;
    collator_.reset(ucol_open(kLocales[static_cast<std::size_t>(rules)], &status));
    ucol_setAttribute(collator_.get(), UCOL_NORMALIZATION_MODE, UCOL_ON, &status);
  }
  bool operator()(const std::pair<std::string, ObjectId>& a,
                  const std::pair<std::string, ObjectId>& b) const {
    UErrorCode status = U_ZERO_ERROR;
    const auto compared =
        ucol_strcollUTF8(collator_.get(), a.first.data(), static_cast<std::int32_t>(a.first.size()),
                         b.first.data(), static_cast<std::int32_t>(b.first.size()), &status);
    return compared != UCOL_EQUAL ? compared == UCOL_LESS : a.second < b.second;
  }

 private:
  std::unique_ptr<UCollator, decltype(&ucol_close)> collator_{nullptr, &ucol_close};
};

bool Holds(const std::map<ObjectId, std::vector<ObjectId>>& members, ObjectId owner, ObjectId user) {
  auto found = members.find(owner);
  return found != members.end() && std::count(found->second.begin(), found->second.end(), user) > 0;
}

}  // namespace

std::unique_ptr<sqlite::Database> MakeEmptyTables(const std::filesystem::path& file) {
  auto database = CreateDirectoryFile(file);
  Migrate(*database, Migrations());
  database->Execute("PRAGMA journal_mode=WAL");
  return database;
}

void StoreUser(sqlite::Database& database, const UserRecord& user) {
  database.Prepare("INSERT OR REPLACE INTO user VALUES(?,1,?,?,?,'','','',?,1,'',0)")
      ->BindAll(user.id, user.name, std::to_string(user.id), user.fullName, user.description)
      .Run();
}

bool IndexModel::InCollection(const Query& query, ObjectId user) const {
  switch (query.collection) {
    case Collection::DomainUsers:
      return Holds(domainUsers, query.scope, user);
    case Collection::UsersWithoutDomain:
      return !Holds(domainUsers, query.scope, user);
    case Collection::GroupMembers:
      return Holds(groupMembers, query.scope, user);
    case Collection::UsersWithoutGroup:
      return Holds(domainUsers, domainOfGroup.at(query.scope), user) &&
             !Holds(groupMembers, query.scope, user);
    case Collection::RoleMembers:
      return Holds(roleMembers, query.scope, user);
    case Collection::UsersWithoutRole:
      return !Holds(roleMembers, query.scope, user);
    default:
      return true;
  }
}

std::vector<ObjectId> IndexModel::Rows(const Query& query, LanguageRules rules) const {
  const std::string filter = FoldedText(query.filter, FoldingOf(rules));
  std::vector<std::pair<std::string, ObjectId>> rows;
  for (const auto& [id, user] : users) {
    bool found = false;
    for (Order order : {Order::Name, Order::FullName, Order::Description}) {
      found = found || TextOf(user, order, rules).find(filter) != std::string::npos;
    }
    if (found && InCollection(query, id)) rows.emplace_back(TextOf(user, query.order, rules), id);
  }
  const DirectComparison before(rules);
  std::sort(rows.begin(), rows.end(), std::cref(before));
  if (query.descending) std::reverse(rows.begin(), rows.end());
  std::vector<ObjectId> ids;
  for (const auto& row : rows) ids.push_back(row.second);
  return ids;
}

std::int64_t IndexModel::FindPrefix(const Query& query, const std::string& prefix, std::int64_t from,
                                    LanguageRules rules) const {
  const auto rows = Rows(query, rules);
  const auto& collator = Collator::Of(rules);
  const std::string start = collator.PrefixKey(FoldedText(prefix, FoldingOf(rules)));
  auto search = [&](std::int64_t begin, std::int64_t end) -> std::int64_t {
    for (auto i = begin; i < end; ++i) {
      const auto& user = users.at(rows[static_cast<std::size_t>(i)]);
      if (collator.PrefixKey(TextOf(user, query.order, rules)).starts_with(start)) return i;
    }
    return -1;
  };
  auto found = search(std::min(from, std::ssize(rows)), std::ssize(rows));
  return found >= 0 ? found : search(0, std::ssize(rows));
}

}  // namespace mindloft::test
