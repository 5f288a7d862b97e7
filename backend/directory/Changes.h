#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "backend/directory/Records.h"

namespace mindloft {

// A change carries what changed and the version that it was based on, never the whole object.

/// An object as somebody saw it.
struct ObjectVersion {
  ObjectId id = 0;
  Version version = 0;
};

struct UserChange : ObjectVersion {
  std::optional<std::string> name, fullName, department, email, telephone, description;
  std::optional<bool> enabled;
};

/// A new description without a document takes the formatted one away.
struct DomainChange : ObjectVersion {
  std::optional<std::string> name, description, document;
  std::optional<ObjectId> style;
  std::optional<bool> disabled;
};

struct GroupChange : ObjectVersion {
  std::optional<std::string> name, description;
  std::optional<std::uint32_t> domainPrivileges;
};

struct StyleChange : ObjectVersion {
  std::optional<std::string> name, definition;
};

/// The memberships that can be changed, seen from the object that owns the list.
enum class Membership : std::uint8_t {
  GroupMembers,  ///< owner: group; members: users
  RoleMembers,   ///< owner: role; members: users
  DomainUsers,   ///< owner: domain; members: users; a user who goes leaves the domain's groups too
  UserRoles,     ///< owner: user; members: roles
  UserDomains,   ///< owner: user; members: domains
  UserGroups,    ///< owner: user; members: groups
};

struct MembershipChange {
  Membership membership = Membership::GroupMembers;
  ObjectVersion owner;
  std::vector<ObjectId> additions;  ///< members already in are no error
  std::vector<ObjectId> removals;   ///< members not in are no error
};

/// What a new domain takes over from an existing one.
struct DomainCopy {
  ObjectId source = 0;
  bool groups = false;  ///< with their privileges
  bool users = false;
  bool members = false;  ///< of the groups; needs groups and users
};

/// Called now and then during a long change with the rows done and the rows in all (0: not known). False
/// cancels: the change then throws Cancelled and leaves nothing behind.
using Progress = std::function<bool(std::int64_t done, std::int64_t total)>;

}  // namespace mindloft
