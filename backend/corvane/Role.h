#pragma once

#include <memory>
#include <string>

#include "backend/corvane/User.h"
#include "backend/corvane/View.h"

namespace mindloft::Corvane {

class Role {
 public:
  Role(std::shared_ptr<Session> session, RoleRecord stored);

  std::string Id() const;
  const std::string& Name() const { return stored_.name; }
  /// The granted privileges in words.
  const std::string& PrivilegeText() const { return stored_.privilegeText; }
  bool BuiltIn() const { return stored_.builtIn; }
  std::shared_ptr<Users> Members() const;
  /// Two lists of user identifiers joined by ";": stored at once.
  void ChangeMembers(const std::string& additions, const std::string& removals);
  /// Users who do not hold the role.
  std::shared_ptr<Users> GetUsersNotAccessible() const;
  const RoleRecord& Stored() const { return stored_; }

 private:
  std::shared_ptr<Session> session_;
  RoleRecord stored_;
};

class Roles {
 public:
  explicit Roles(std::shared_ptr<Session> session) : session_(std::move(session)) {}
  /// Nothing when there is none.
  std::shared_ptr<Role> Item(const std::string& id) const;
  std::int64_t Count() const;
  RoleView View() const;

 private:
  std::shared_ptr<Session> session_;
};

}  // namespace mindloft::Corvane
