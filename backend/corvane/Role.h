#pragma once

#include <memory>
#include <string>
#include <utility>

#include "backend/corvane/View.h"
#include "backend/directory/Changes.h"

namespace mindloft::Corvane {

class Users;

/// A role of the installation. Which roles there are is fixed; their members change.
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
  void ChangeMembers(const std::string& additions, const std::string& removals,
                     const Progress& progress = {});
  /// Users who do not hold the role.
  std::shared_ptr<Users> GetUsersNotAccessible() const;
  const RoleRecord& Stored() const { return stored_; }
  /// The record as it is stored now; the object stays as it is. ObjectNotFound when it is gone.
  RoleRecord Current() const;
  /// Takes another record as the stored one.
  void Rebase(RoleRecord stored) { stored_ = std::move(stored); }

 private:
  std::shared_ptr<Session> session_;
  RoleRecord stored_;
};

}  // namespace mindloft::Corvane
