#include "backend/directory/file/StartingContent.h"

#include "backend/directory/FoldedText.h"
#include "backend/directory/Privileges.h"
#include "backend/directory/file/StartingStyles.h"
#include "backend/directory/index/UserIndex.h"
#include "backend/directory/session/PasswordHash.h"
#include "backend/directory/store/Journal.h"
#include "backend/directory/store/TextRules.h"

namespace mindloft {
namespace {

struct BuiltInRole {
  const char* name;
  std::uint32_t privileges;
};

// The first one is the first administrator's.
constexpr BuiltInRole kRoles[] = {
    {"Administrators", AllSysPrivileges},
    {"User managers", ManageUsers | DeleteUsers | ManageRoles},
    {"Domain managers", CreateDomains | ChangeDomains | DeleteDomains | ManageStyles},
    {"Auditors", ReadJournal},
};

ObjectId AddRole(sqlite::Database& database, const BuiltInRole& role) {
  database.Prepare("INSERT INTO role (version, name, name_key, built_in, privileges) VALUES (1, ?, ?, 1, ?)")
      ->BindAll(role.name, FoldedText(role.name), role.privileges)
      .Run();
  return database.LastInsertId();
}

ObjectId AddUser(sqlite::Database& database, const std::string& name, const std::string& password) {
  database
      .Prepare(
          "INSERT INTO user (version, name, name_key, full_name, department, email, telephone, description, "
          "enabled, password, last_login) VALUES (1, ?, ?, '', '', '', '', '', 1, ?, 0)")
      ->BindAll(name, FoldedText(name), HashPassword(password))
      .Run();
  ObjectId id = database.LastInsertId();
  UserIndex(database).Insert(id, {name, "", ""});
  return id;
}

}  // namespace

void AddStartingContent(sqlite::Database& database, const std::string& name, const std::string& password) {
  const std::string administrator = CheckedName(name);
  RequireGoodPassword(password);
  ObjectId firstRole = 0;
  for (const auto& role : kRoles) {
    ObjectId id = AddRole(database, role);
    if (firstRole == 0) firstRole = id;
  }
  AddStartingStyles(database);
  ObjectId user = AddUser(database, administrator, password);
  database.Prepare("INSERT INTO role_member (role, user) VALUES (?, ?)")->BindAll(firstRole, user).Run();
  JsonObject after;
  after.Add("name", administrator);
  after.Add("roles", {{firstRole, kRoles[0].name}});
  Journal(database).Write(administrator, "create", {"user", user, administrator}, {}, after);
}

}  // namespace mindloft
