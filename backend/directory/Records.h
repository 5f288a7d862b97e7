#pragma once

#include <cstdint>
#include <string>

namespace mindloft {

/// Identifies an object within its kind; never reused. 0 is no object.
using ObjectId = std::int64_t;

/// Counts the changes of one object; a change names the version that it was based on.
using Version = std::int64_t;

/// Milliseconds since 1970-01-01 00:00 UTC; 0 is never.
using Timestamp = std::int64_t;

// The records are plain values: nothing in them leads back to the store. All texts are UTF-8.

struct UserRecord {
  ObjectId id = 0;
  Version version = 0;
  std::string name;  ///< login name, unique without regard to case
  std::string fullName;
  std::string department;
  std::string email;
  std::string telephone;
  std::string description;
  bool enabled = true;
  Timestamp lastLogin = 0;
  bool operator==(const UserRecord&) const = default;
};

struct RoleRecord {
  ObjectId id = 0;
  Version version = 0;
  std::string name;
  bool builtIn = false;
  std::uint32_t sysPrivileges = 0;  ///< mask of SysPrivilege
  std::string privilegeText;        ///< the privileges in words
  bool operator==(const RoleRecord&) const = default;
};

struct DomainRecord {
  ObjectId id = 0;
  Version version = 0;
  std::string name;
  std::string description;  ///< plain text; of a formatted description its beginning
  std::string document;     ///< the formatted description (XML); empty: none, or the row of a page
  ObjectId style = 0;       ///< 0: none
  bool disabled = false;
  bool operator==(const DomainRecord&) const = default;
};

struct GroupRecord {
  ObjectId id = 0;
  Version version = 0;
  ObjectId domain = 0;
  std::int32_t kind = 0;  ///< GroupKind
  bool builtIn = false;
  bool editable = true;
  std::uint32_t domainPrivileges = 0;  ///< mask of DomainPrivilege
  std::string name;
  std::string description;
  bool operator==(const GroupRecord&) const = default;
};

/// Kinds of domain groups that the program knows by number.
enum GroupKind : std::int32_t {
  OrdinaryGroup = 0,
  AdministratorsGroup = 5,  ///< every domain has exactly one
};

struct StyleRecord {
  ObjectId id = 0;
  Version version = 0;
  std::string name;
  std::string definition;
  bool operator==(const StyleRecord&) const = default;
};

struct JournalRecord {
  ObjectId id = 0;
  Timestamp when = 0;
  std::string who;     ///< login name of the user who made the change
  std::string action;  ///< "create", "change", "delete", "members", "password", "login", "load"
  std::string kind;    ///< "user", "role", "domain", "group", "domain users", "style", "configuration"
  ObjectId object = 0;
  std::string name;    ///< the object's name at that time
  std::string before;  ///< the changed fields as JSON; never a password
  std::string after;
  bool operator==(const JournalRecord&) const = default;
};

}  // namespace mindloft
