#pragma once

#include <cstdint>

#include "backend/directory/Privileges.h"
#include "backend/directory/session/Caller.h"
#include "backend/directory/sqlite/Database.h"

namespace mindloft {

/// Who may do what. Privileges are held through roles (whole installation) and domain groups (one domain);
/// whoever may manage memberships may hand out any role or group, also to themselves.
class Rights {
 public:
  explicit Rights(sqlite::Database& database) : database_(database) {}

  std::uint32_t System(ObjectId user);
  std::uint32_t InDomain(ObjectId user, ObjectId domain);

  bool Has(const Caller& caller, SysPrivilege privilege);
  /// Throws AccessDenied.
  void Require(const Caller& caller, SysPrivilege privilege);
  /// The domain privilege is enough, and so is ChangeDomains. Throws AccessDenied.
  void RequireInDomain(const Caller& caller, ObjectId domain, DomainPrivilege privilege);

 private:
  sqlite::Database& database_;
};

}  // namespace mindloft
