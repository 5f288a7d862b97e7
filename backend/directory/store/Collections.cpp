#include "backend/directory/store/Collections.h"

namespace mindloft {
namespace {

/// One row when the object ?1 is in the collection of the scope ?2.
const char* MembershipSql(Collection collection) {
  switch (collection) {
    case Collection::Users:
      return "SELECT 1 FROM user WHERE id = ?1 AND ?2 IS NOT NULL";
    case Collection::DomainUsers:
      return "SELECT 1 FROM domain_user WHERE user = ?1 AND domain = ?2";
    case Collection::UsersWithoutDomain:
      return "SELECT 1 FROM user WHERE id = ?1 AND NOT EXISTS "
             "(SELECT 1 FROM domain_user WHERE user = ?1 AND domain = ?2)";
    case Collection::GroupMembers:
      return "SELECT 1 FROM group_member WHERE user = ?1 AND grp = ?2";
    case Collection::UsersWithoutGroup:
      return "SELECT 1 FROM domain_user WHERE user = ?1 AND domain = (SELECT domain FROM grp WHERE id = ?2) "
             "AND NOT EXISTS (SELECT 1 FROM group_member WHERE user = ?1 AND grp = ?2)";
    case Collection::RoleMembers:
      return "SELECT 1 FROM role_member WHERE user = ?1 AND role = ?2";
    case Collection::UsersWithoutRole:
      return "SELECT 1 FROM user WHERE id = ?1 AND NOT EXISTS "
             "(SELECT 1 FROM role_member WHERE user = ?1 AND role = ?2)";
    case Collection::Roles:
      return "SELECT 1 FROM role WHERE id = ?1 AND ?2 IS NOT NULL";
    case Collection::UserRoles:
      return "SELECT 1 FROM role_member WHERE role = ?1 AND user = ?2";
    case Collection::Domains:
      return "SELECT 1 FROM domain WHERE id = ?1 AND ?2 IS NOT NULL";
    case Collection::UserDomains:
      return "SELECT 1 FROM domain_user WHERE domain = ?1 AND user = ?2";
    case Collection::StyleDomains:
      return "SELECT 1 FROM domain WHERE id = ?1 AND style = ?2";
    case Collection::DomainGroups:
      return "SELECT 1 FROM grp WHERE id = ?1 AND domain = ?2";
    case Collection::UserGroups:
      return "SELECT 1 FROM group_member WHERE grp = ?1 AND user = ?2";
    case Collection::Styles:
      return "SELECT 1 FROM style WHERE id = ?1 AND ?2 IS NOT NULL";
    case Collection::Journal:
      break;
  }
  return "SELECT 1 FROM journal WHERE id = ?1 AND ?2 IS NOT NULL";
}

}  // namespace

RecordKind KindOf(Collection collection) {
  switch (collection) {
    case Collection::Users:
    case Collection::DomainUsers:
    case Collection::UsersWithoutDomain:
    case Collection::GroupMembers:
    case Collection::UsersWithoutGroup:
    case Collection::RoleMembers:
    case Collection::UsersWithoutRole:
      return RecordKind::User;
    case Collection::Roles:
    case Collection::UserRoles:
      return RecordKind::Role;
    case Collection::Domains:
    case Collection::UserDomains:
    case Collection::StyleDomains:
      return RecordKind::Domain;
    case Collection::DomainGroups:
    case Collection::UserGroups:
      return RecordKind::Group;
    case Collection::Styles:
      return RecordKind::Style;
    case Collection::Journal:
      break;
  }
  return RecordKind::Journal;
}

void RequireKind(Collection collection, RecordKind kind) {
  if (KindOf(collection) != kind) {
    throw Error(ErrorNumber::TypeMismatch,
                "collection " + std::to_string(static_cast<int>(collection)) + " holds other records");
  }
}

bool CollectionContains(sqlite::Database& database, Collection collection, ObjectId scope, ObjectId object) {
  auto row = database.Prepare(MembershipSql(collection));
  row->BindAll(object, scope);
  return row->Step();
}

}  // namespace mindloft
