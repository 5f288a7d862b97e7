#pragma once

#include <memory>
#include <string>

#include "backend/corvane/View.h"
#include "backend/directory/Changes.h"

namespace mindloft::Corvane {

/// A user: an object of the directory, or a new one that its first Update stores.
class User {
 public:
  User(std::shared_ptr<Session> session, UserRecord stored);
  /// A new user.
  explicit User(std::shared_ptr<Session> session);

  /// Empty while the user is new.
  std::string Id() const;
  const std::string& Name() const { return edited_.name; }
  void SetName(std::string name) { edited_.name = std::move(name); }
  bool HasSysPrivilege(std::uint32_t privilege) const;
  const std::string& FullName() const { return edited_.fullName; }
  void SetFullName(std::string text) { edited_.fullName = std::move(text); }
  const std::string& Department() const { return edited_.department; }
  void SetDepartment(std::string text) { edited_.department = std::move(text); }
  const std::string& EMail() const { return edited_.email; }
  void SetEMail(std::string text) { edited_.email = std::move(text); }
  const std::string& Telephone() const { return edited_.telephone; }
  void SetTelephone(std::string text) { edited_.telephone = std::move(text); }
  const std::string& Description() const { return edited_.description; }
  void SetDescription(std::string text) { edited_.description = std::move(text); }
  bool Enabled() const { return edited_.enabled; }
  void SetEnabled(bool enabled) { edited_.enabled = enabled; }
  Timestamp LastLogin() const { return stored_.lastLogin; }

  bool IsNew() const { return stored_.id == 0; }
  /// Stores the puts: a new user is created (with the password given to SetPassword before, else none, so
  /// that the user cannot log in yet), a stored one changed.
  void Update();
  /// True drops the puts.
  void CancelEdit(bool cancel);
  /// Stores at once for a stored user; a new user keeps it for Update.
  void SetPassword(const std::string& password);

  /// The identifiers of all roles, groups (of all domains) and domains that hold the user, joined by ";".
  std::string RoleIds() const;
  std::string GroupIds() const;
  std::string DomainIds() const;
  /// The same as windows; without rows while the user is new.
  RoleView Roles() const;
  GroupView Groups() const;
  DomainView Domains() const;
  /// Two lists of identifiers joined by ";": stored at once.
  void ChangeRoles(const std::string& additions, const std::string& removals);
  void ChangeGroups(const std::string& additions, const std::string& removals);
  void ChangeDomains(const std::string& additions, const std::string& removals);

  const UserRecord& Stored() const { return stored_; }
  /// The stored record with the puts that wait for Update.
  const UserRecord& Edited() const { return edited_; }
  /// The record as it is stored now; the object stays as it is. ObjectNotFound when it is gone.
  UserRecord Current() const;
  /// Takes another record as the stored one, and what is to wait for Update on it.
  void Rebase(UserRecord stored, UserRecord edited);

 private:
  void ChangeLists(Membership membership, const std::string& additions, const std::string& removals);

  std::shared_ptr<Session> session_;
  UserRecord stored_, edited_;
  std::string firstPassword_;
};

}  // namespace mindloft::Corvane
