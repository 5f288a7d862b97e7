#include "backend/corvane/User.h"

#include <utility>

#include "backend/corvane/ChangedField.h"
#include "backend/corvane/IdList.h"
#include "backend/corvane/MembershipLists.h"
#include "backend/errors/Error.h"

namespace mindloft::Corvane {

User::User(std::shared_ptr<Session> session, UserRecord stored)
    : session_(std::move(session)), stored_(std::move(stored)), edited_(stored_) {}

User::User(std::shared_ptr<Session> session) : User(std::move(session), UserRecord()) {}

std::string User::Id() const {
  return IdText(stored_.id);
}

bool User::HasSysPrivilege(std::uint32_t privilege) const {
  if (IsNew()) return false;
  return (session_->Door().SysPrivileges(session_->id, stored_.id) & privilege) == privilege;
}

void User::Update() {
  if (IsNew()) {
    stored_ = session_->Door().CreateUser(session_->id, edited_, firstPassword_);
    firstPassword_.clear();
  } else {
    UserChange change;
    change.id = stored_.id;
    change.version = stored_.version;
    bool changed = TakeChanged(change.name, stored_.name, edited_.name);
    changed |= TakeChanged(change.fullName, stored_.fullName, edited_.fullName);
    changed |= TakeChanged(change.department, stored_.department, edited_.department);
    changed |= TakeChanged(change.email, stored_.email, edited_.email);
    changed |= TakeChanged(change.telephone, stored_.telephone, edited_.telephone);
    changed |= TakeChanged(change.description, stored_.description, edited_.description);
    changed |= TakeChanged(change.enabled, stored_.enabled, edited_.enabled);
    if (!changed) return;
    stored_ = session_->Door().ChangeUser(session_->id, change);
  }
  edited_ = stored_;
}

void User::CancelEdit(bool cancel) {
  if (!cancel) return;
  edited_ = stored_;
  firstPassword_.clear();
}

void User::SetPassword(const std::string& password) {
  if (IsNew()) {
    firstPassword_ = password;
    return;
  }
  // The puts that wait for Update stay: they are told from the stored texts, which a password leaves alone.
  stored_ = session_->Door().SetPassword(session_->id, {stored_.id, stored_.version}, password);
}

std::string User::RoleIds() const {
  return IsNew() ? std::string() : IdListOf(Roles());
}

std::string User::GroupIds() const {
  return IsNew() ? std::string() : IdListOf(Groups());
}

std::string User::DomainIds() const {
  return IsNew() ? std::string() : IdListOf(Domains());
}

RoleView User::Roles() const {
  return {session_, Collection::UserRoles, stored_.id};
}

GroupView User::Groups() const {
  return {session_, Collection::UserGroups, stored_.id};
}

DomainView User::Domains() const {
  return {session_, Collection::UserDomains, stored_.id};
}

void User::ChangeRoles(const std::string& additions, const std::string& removals) {
  ChangeLists(Membership::UserRoles, additions, removals);
}

void User::ChangeGroups(const std::string& additions, const std::string& removals) {
  ChangeLists(Membership::UserGroups, additions, removals);
}

void User::ChangeDomains(const std::string& additions, const std::string& removals) {
  ChangeLists(Membership::UserDomains, additions, removals);
}

void User::ChangeLists(Membership membership, const std::string& additions, const std::string& removals) {
  stored_.version =
      ChangeMemberships(*session_, membership, {stored_.id, stored_.version}, additions, removals);
}

UserRecord User::Current() const {
  auto found = session_->Door().FindUser(session_->id, stored_.id);
  if (!found) throw Error(ErrorNumber::ObjectNotFound, "user " + Id());
  return std::move(*found);
}

void User::Rebase(UserRecord stored, UserRecord edited) {
  stored_ = std::move(stored);
  edited_ = std::move(edited);
}

}  // namespace mindloft::Corvane
