#pragma once

#include <cstdint>
#include <string>

#include "backend/directory/Records.h"

namespace mindloft {

/// The collections that a directory can be asked for. `Query::scope` names the object that a collection hangs
/// on.
enum class Collection : std::uint8_t {
  // Users, read with UserPage.
  Users,               ///< all
  DomainUsers,         ///< scope: domain; the users who may use it
  UsersWithoutDomain,  ///< scope: domain; the users who may not
  GroupMembers,        ///< scope: group
  UsersWithoutGroup,   ///< scope: group; the users of the group's domain who are not its members
  RoleMembers,         ///< scope: role
  UsersWithoutRole,    ///< scope: role
  // Roles, read with RolePage.
  Roles,
  UserRoles,  ///< scope: user
  // Domains, read with DomainPage.
  Domains,
  UserDomains,   ///< scope: user
  StyleDomains,  ///< scope: style; the domains that are shown in it
  // Groups, read with GroupPage.
  DomainGroups,  ///< scope: domain
  UserGroups,    ///< scope: user; in all domains
  // Styles, read with StylePage.
  Styles,
  // Changes, read with JournalPage; always the newest first.
  Journal,
};

/// The offered orders. A collection whose rows lack the field is ordered by name. Equal keys are ordered by
/// identifier.
enum class Order : std::uint8_t {
  Name,
  FullName,     ///< of users
  Description,  ///< of users, domains and groups
  State,        ///< of domains: the enabled ones, then the disabled ones, both by name
  Privileges,   ///< of roles: their privileges in words
};

/// One window on a collection: which rows, in which order.
struct Query {
  Collection collection = Collection::Users;
  ObjectId scope = 0;
  Order order = Order::Name;
  bool descending = false;
  /// Rows are in when one of their listed texts (name, full name, description) holds this text, without
  /// regard to case, width or accents' composition. Empty: all rows.
  std::string filter;
  bool operator==(const Query&) const = default;
};

}  // namespace mindloft
