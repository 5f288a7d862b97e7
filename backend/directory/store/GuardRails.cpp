#include "backend/directory/store/GuardRails.h"

#include "backend/directory/Privileges.h"

namespace mindloft {

bool HasUserManager(sqlite::Database& database) {
  // From the few roles to their members.
  auto manager = database.Prepare(
      "SELECT 1 FROM role r CROSS JOIN role_member m ON m.role = r.id CROSS JOIN user u ON u.id = m.user "
      "WHERE r.privileges & ? AND u.enabled AND u.password <> '' LIMIT 1");
  manager->BindAll(std::int64_t{ManageUsers});
  return manager->Step();
}

void RequireUserManager(sqlite::Database& database) {
  if (!HasUserManager(database)) throw Error(ErrorNumber::LastUserManager);
}

}  // namespace mindloft
