#include "backend/corvane/Role.h"

#include <utility>

#include "backend/corvane/MembershipLists.h"
#include "backend/corvane/Users.h"
#include "backend/errors/Error.h"

namespace mindloft::Corvane {

Role::Role(std::shared_ptr<Session> session, RoleRecord stored)
    : session_(std::move(session)), stored_(std::move(stored)) {}

std::string Role::Id() const {
  return IdText(stored_.id);
}

std::shared_ptr<Users> Role::Members() const {
  return std::make_shared<Users>(session_, Collection::RoleMembers, stored_.id);
}

void Role::ChangeMembers(const std::string& additions, const std::string& removals,
                         const Progress& progress) {
  stored_.version = ChangeMemberships(*session_, Membership::RoleMembers, {stored_.id, stored_.version},
                                      additions, removals, progress);
}

std::shared_ptr<Users> Role::GetUsersNotAccessible() const {
  return std::make_shared<Users>(session_, Collection::UsersWithoutRole, stored_.id);
}

RoleRecord Role::Current() const {
  auto found = session_->Door().FindRole(session_->id, stored_.id);
  if (!found) throw Error(ErrorNumber::ObjectNotFound, "role " + Id());
  return std::move(*found);
}

}  // namespace mindloft::Corvane
