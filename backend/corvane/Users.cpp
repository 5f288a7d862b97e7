#include "backend/corvane/Users.h"

#include <utility>

#include "backend/corvane/User.h"
#include "backend/errors/Error.h"

namespace mindloft::Corvane {

Users::Users(std::shared_ptr<Session> session, Collection collection, ObjectId scope)
    : session_(std::move(session)), collection_(collection), scope_(scope) {}

std::shared_ptr<User> Users::Item(const std::string& id) const {
  auto& door = session_->Door();
  const auto user = IdFromText(id);
  if (user == 0) return nullptr;
  if (collection_ != Collection::Users && !door.Contains(session_->id, collection_, scope_, user)) {
    return nullptr;
  }
  auto record = door.FindUser(session_->id, user);
  return record ? std::make_shared<User>(session_, std::move(*record)) : nullptr;
}

std::vector<std::shared_ptr<User>> Users::Items(const std::vector<ObjectId>& ids) const {
  std::vector<std::shared_ptr<User>> users;
  users.reserve(ids.size());
  for (auto& record : session_->Door().FindUsers(session_->id, ids))
    users.push_back(std::make_shared<User>(session_, std::move(record)));
  return users;
}

std::vector<ObjectVersion> Users::Versions(const std::vector<ObjectId>& ids) const {
  return session_->Door().VersionsIn(session_->id, collection_, scope_, ids);
}

std::int64_t Users::Count() const {
  return View().Count();
}

UserView Users::View() const {
  return UserView(session_, collection_, scope_);
}

std::shared_ptr<User> Users::Add() const {
  return std::make_shared<User>(session_);
}

void Users::Delete(const std::vector<ObjectVersion>& users, const Progress& progress) const {
  if (collection_ == Collection::Users) {
    session_->Door().DeleteUsers(session_->id, users, progress);
    return;
  }
  MembershipChange change{OwnMembership(), Owner(), {}, {}};
  change.removals.reserve(users.size());
  for (const auto& user : users) change.removals.push_back(user.id);
  if (!users.empty()) session_->Door().ChangeMembers(session_->id, change, progress);
}

Membership Users::OwnMembership() const {
  switch (collection_) {
    case Collection::DomainUsers:
      return Membership::DomainUsers;
    case Collection::GroupMembers:
      return Membership::GroupMembers;
    case Collection::RoleMembers:
      return Membership::RoleMembers;
    default:
      throw Error(ErrorNumber::TypeMismatch, "users who are no members cannot be taken out");
  }
}

ObjectVersion Users::Owner() const {
  auto& door = session_->Door();
  const auto versionOf = [this](const auto& record) {
    if (!record) throw Error(ErrorNumber::ObjectNotFound, "owner " + IdText(scope_));
    return ObjectVersion{record->id, record->version};
  };
  switch (collection_) {
    case Collection::DomainUsers:
      return versionOf(door.FindDomain(session_->id, scope_));
    case Collection::GroupMembers:
      return versionOf(door.FindGroup(session_->id, scope_));
    default:
      return versionOf(door.FindRole(session_->id, scope_));
  }
}

}  // namespace mindloft::Corvane
