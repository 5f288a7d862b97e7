#pragma once

#include <memory>
#include <string>

#include "backend/corvane/User.h"
#include "backend/corvane/View.h"

namespace mindloft::Corvane {

/// One group of a knowledge domain, stored or new.
class DGroup {
 public:
  DGroup(std::shared_ptr<Session> session, GroupRecord stored);

  /// Empty while the group is new.
  std::string Id() const;
  const std::string& Name() const { return edited_.name; }
  void SetName(std::string name) { edited_.name = std::move(name); }
  const std::string& Description() const { return edited_.description; }
  void SetDescription(std::string text) { edited_.description = std::move(text); }
  std::int32_t Kind() const { return stored_.kind; }
  bool BuiltIn() const { return stored_.builtIn; }
  bool Editable() const { return stored_.editable; }
  std::uint32_t DomainPrivileges() const { return edited_.domainPrivileges; }
  void SetDomainPrivileges(std::uint32_t mask) { edited_.domainPrivileges = mask; }
  std::string DomainId() const;
  bool IsNew() const { return stored_.id == 0; }
  void Update();
  void CancelEdit(bool cancel);
  std::shared_ptr<Users> Members() const;
  /// Two lists of user identifiers joined by ";": stored at once.
  void ChangeMembers(const std::string& additions, const std::string& removals);
  /// Users of the domain who are not members.
  std::shared_ptr<Users> GetUsersNotAccessible() const;
  const GroupRecord& Stored() const { return stored_; }

 private:
  std::shared_ptr<Session> session_;
  GroupRecord stored_, edited_;
};

/// The groups of one knowledge domain.
class DGroups {
 public:
  DGroups(std::shared_ptr<Session> session, ObjectId domain);
  /// Nothing when there is none.
  std::shared_ptr<DGroup> Item(const std::string& id) const;
  std::int64_t Count() const;
  GroupView View() const;
  /// The group of that kind; nothing when there is none.
  std::shared_ptr<DGroup> OfKind(std::int32_t kind) const;
  /// A new group, stored by its first Update.
  std::shared_ptr<DGroup> Add() const;
  void Delete(const std::vector<ObjectVersion>& groups) const;

 private:
  std::shared_ptr<Session> session_;
  ObjectId domain_;
};

}  // namespace mindloft::Corvane
