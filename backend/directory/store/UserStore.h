#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "backend/directory/index/UserIndex.h"
#include "backend/directory/store/StoreParts.h"

namespace mindloft {

/// The users and their place in the user index.
class UserStore {
 public:
  UserStore(const StoreParts& parts, UserIndex& index) : parts_(parts), index_(index) {}

  std::optional<UserRecord> Find(ObjectId id);
  std::optional<UserRecord> FindByName(std::string_view name);
  std::vector<UserRecord> Read(const std::vector<ObjectId>& ids);

  /// `passwordHash` may be empty: the user cannot log in then.
  UserRecord Create(const Caller& caller, UserRecord user, const std::string& passwordHash);
  UserRecord Change(const Caller& caller, const UserChange& change);
  UserRecord SetPassword(const Caller& caller, const ObjectVersion& user, const std::string& passwordHash);
  void Delete(const Caller& caller, const std::vector<ObjectVersion>& users, const Progress& progress);
  /// Counts one more change of the user, whose record must be current.
  Version BumpVersion(const UserRecord& user);
  /// The user as the change saw it: ObjectNotFound, Conflict.
  UserRecord Require(const ObjectVersion& user);

 private:
  /// All but the place in the index.
  void DeleteOne(const Caller& caller, const UserRecord& user);
  std::vector<std::pair<ObjectId, std::string>> Containers(const char* sql, ObjectId user);

  StoreParts parts_;
  UserIndex& index_;
};

}  // namespace mindloft
