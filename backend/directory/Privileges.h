#pragma once

#include <cstdint>

namespace mindloft {

/// System privileges: what a role's members may do in the whole installation. Each is one bit.
enum SysPrivilege : std::uint32_t {
  ManageRoles = 1,  ///< put users into roles and take them out
  CreateDomains = 2,
  ChangeDomains = 4,  ///< any domain's properties, groups and users
  DeleteDomains = 8,
  ManageUsers = 16,  ///< create users, change them, set their passwords
  DeleteUsers = 32,
  ManageStyles = 64,
  ReadJournal = 128,
  AllSysPrivileges = 255,
};

/// Domain privileges: what a group's members may do in their knowledge domain. Each is one bit.
enum DomainPrivilege : std::uint32_t {
  ReadDocuments = 1,
  WriteDocuments = 2,
  ManageDomainUsers = 4,   ///< give users access to the domain and take it away
  ManageDomainGroups = 8,  ///< create, change and delete groups and their members
  ChangeDomain = 16,       ///< the domain's own properties
  AllDomainPrivileges = 31,
};

}  // namespace mindloft
