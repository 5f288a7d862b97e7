#include "IndexModel.h"

#include <algorithm>

#include "backend/directory/FoldedText.h"
#include "backend/directory/file/DirectoryFile.h"
#include "backend/directory/file/Schema.h"

namespace mindloft::test {
namespace {

std::string KeyOf(const UserRecord& user, Order order) {
  return FoldedText(order == Order::Name       ? user.name
                    : order == Order::FullName ? user.fullName
                                               : user.description);
}

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

std::vector<ObjectId> IndexModel::Rows(const Query& query) const {
  const std::string filter = FoldedText(query.filter);
  std::vector<std::pair<std::string, ObjectId>> rows;
  for (const auto& [id, user] : users) {
    bool found = false;
    for (Order order : {Order::Name, Order::FullName, Order::Description}) {
      found = found || KeyOf(user, order).find(filter) != std::string::npos;
    }
    if (found && InCollection(query, id)) rows.emplace_back(KeyOf(user, query.order), id);
  }
  std::sort(rows.begin(), rows.end());
  if (query.descending) std::reverse(rows.begin(), rows.end());
  std::vector<ObjectId> ids;
  for (const auto& row : rows) ids.push_back(row.second);
  return ids;
}

std::int64_t IndexModel::FindPrefix(const Query& query, const std::string& prefix, std::int64_t from) const {
  const auto rows = Rows(query);
  const std::string start = FoldedText(prefix);
  auto search = [&](std::int64_t begin, std::int64_t end) -> std::int64_t {
    for (auto i = begin; i < end; ++i) {
      if (KeyOf(users.at(rows[static_cast<std::size_t>(i)]), query.order).starts_with(start)) return i;
    }
    return -1;
  };
  auto found = search(std::min(from, std::ssize(rows)), std::ssize(rows));
  return found >= 0 ? found : search(0, std::ssize(rows));
}

}  // namespace mindloft::test
