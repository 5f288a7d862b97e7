#pragma once

#include <memory>
#include <string>

#include "backend/corvane/View.h"
#include "backend/directory/Changes.h"

namespace mindloft::Corvane {

class Users;

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
  void ChangeMembers(const std::string& additions, const std::string& removals,
                     const Progress& progress = {});
  /// Users of the domain who are not members: all of them while the group is new.
  std::shared_ptr<Users> GetUsersNotAccessible() const;
  const GroupRecord& Stored() const { return stored_; }
  /// The stored record with the puts that wait for Update.
  const GroupRecord& Edited() const { return edited_; }
  /// The record as it is stored now; the object stays as it is. ObjectNotFound when it is gone.
  GroupRecord Current() const;
  /// Takes another record as the stored one, and what is to wait for Update on it.
  void Rebase(GroupRecord stored, GroupRecord edited);

 private:
  std::shared_ptr<Session> session_;
  GroupRecord stored_, edited_;
};

}  // namespace mindloft::Corvane
