#pragma once

#include <optional>
#include <vector>

#include "backend/directory/store/ProgressSteps.h"
#include "backend/directory/store/StoreParts.h"

namespace mindloft {

/// The groups of the knowledge domains.
class GroupStore {
 public:
  explicit GroupStore(const StoreParts& parts) : parts_(parts) {}

  std::optional<GroupRecord> Find(ObjectId id);
  std::vector<GroupRecord> Read(const std::vector<ObjectId>& ids);

  /// An administrators group comes with its domain only: BuiltInObject for a second one.
  GroupRecord Create(const Caller& caller, GroupRecord group);
  /// A built-in group keeps its name, the administrators group also its privileges; a group that cannot be
  /// edited keeps everything: BuiltInObject.
  GroupRecord Change(const Caller& caller, const GroupChange& change);
  void Delete(const Caller& caller, const std::vector<ObjectVersion>& groups, const Progress& progress);

  /// Stores a group whose rights and texts have been checked; no journal row. Returns its id.
  ObjectId Insert(const GroupRecord& group);
  /// The group as the change saw it: ObjectNotFound, Conflict.
  GroupRecord Require(const ObjectVersion& group);

 private:
  void DeleteOne(const Caller& caller, const GroupRecord& group, ProgressSteps& steps);

  StoreParts parts_;
};

/// The administrators group that a new domain gets.
GroupRecord NewAdministratorsGroup(ObjectId domain);

}  // namespace mindloft
