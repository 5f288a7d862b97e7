#include "backend/directory/session/Rights.h"

namespace mindloft {
namespace {

std::uint32_t UnionOfMasks(sqlite::Statement& masks) {
  std::uint32_t all = 0;
  while (masks.Step()) all |= static_cast<std::uint32_t>(masks.Int(0));
  return all;
}

}  // namespace

std::uint32_t Rights::System(ObjectId user) {
  auto masks = database_.Prepare(
      "SELECT r.privileges FROM role_member m JOIN role r ON r.id = m.role WHERE m.user = ?");
  return UnionOfMasks(masks->BindAll(user));
}

std::uint32_t Rights::InDomain(ObjectId user, ObjectId domain) {
  // From the domain's groups, which are few, to the member.
  auto masks = database_.Prepare(
      "SELECT g.privileges FROM grp g CROSS JOIN group_member m ON m.grp = g.id AND m.user = ?1 "
      "WHERE g.domain = ?2");
  return UnionOfMasks(masks->BindAll(user, domain));
}

bool Rights::Has(const Caller& caller, SysPrivilege privilege) {
  return (System(caller.user) & privilege) != 0;
}

void Rights::Require(const Caller& caller, SysPrivilege privilege) {
  if (!Has(caller, privilege)) {
    throw Error(ErrorNumber::AccessDenied, "system privilege " + std::to_string(privilege));
  }
}

void Rights::RequireInDomain(const Caller& caller, ObjectId domain, DomainPrivilege privilege) {
  if (Has(caller, ChangeDomains) || (InDomain(caller.user, domain) & privilege) != 0) return;
  throw Error(ErrorNumber::AccessDenied,
              "privilege " + std::to_string(privilege) + " in domain " + std::to_string(domain));
}

}  // namespace mindloft
