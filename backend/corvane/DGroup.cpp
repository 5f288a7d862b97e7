#include "backend/corvane/DGroup.h"

#include <utility>

#include "backend/corvane/ChangedField.h"
#include "backend/corvane/MembershipLists.h"
#include "backend/corvane/Users.h"
#include "backend/errors/Error.h"

namespace mindloft::Corvane {

DGroup::DGroup(std::shared_ptr<Session> session, GroupRecord stored)
    : session_(std::move(session)), stored_(std::move(stored)), edited_(stored_) {}

std::string DGroup::Id() const {
  return IdText(stored_.id);
}

std::string DGroup::DomainId() const {
  return IdText(stored_.domain);
}

void DGroup::Update() {
  if (IsNew()) {
    stored_ = session_->Door().CreateGroup(session_->id, edited_);
  } else {
    GroupChange change;
    change.id = stored_.id;
    change.version = stored_.version;
    bool changed = TakeChanged(change.name, stored_.name, edited_.name);
    changed |= TakeChanged(change.description, stored_.description, edited_.description);
    changed |= TakeChanged(change.domainPrivileges, stored_.domainPrivileges, edited_.domainPrivileges);
    if (!changed) return;
    stored_ = session_->Door().ChangeGroup(session_->id, change);
  }
  edited_ = stored_;
}

void DGroup::CancelEdit(bool cancel) {
  if (cancel) edited_ = stored_;
}

std::shared_ptr<Users> DGroup::Members() const {
  return std::make_shared<Users>(session_, Collection::GroupMembers, stored_.id);
}

void DGroup::ChangeMembers(const std::string& additions, const std::string& removals,
                           const Progress& progress) {
  stored_.version = ChangeMemberships(*session_, Membership::GroupMembers, {stored_.id, stored_.version},
                                      additions, removals, progress);
}

std::shared_ptr<Users> DGroup::GetUsersNotAccessible() const {
  if (IsNew()) return std::make_shared<Users>(session_, Collection::DomainUsers, stored_.domain);
  return std::make_shared<Users>(session_, Collection::UsersWithoutGroup, stored_.id);
}

GroupRecord DGroup::Current() const {
  auto found = session_->Door().FindGroup(session_->id, stored_.id);
  if (!found) throw Error(ErrorNumber::ObjectNotFound, "group " + Id());
  return std::move(*found);
}

void DGroup::Rebase(GroupRecord stored, GroupRecord edited) {
  stored_ = std::move(stored);
  edited_ = std::move(edited);
}

}  // namespace mindloft::Corvane
