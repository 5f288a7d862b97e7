#pragma once

#include "backend/directory/store/GroupStore.h"
#include "backend/directory/store/ProgressSteps.h"
#include "backend/directory/store/StoreParts.h"

namespace mindloft {

/// Takes an existing domain's groups, users and group members over into a new one.
class DomainCopier {
 public:
  DomainCopier(const StoreParts& parts, GroupStore& groups) : database_(parts.database), groups_(groups) {}
  /// Members need groups and users: TypeMismatch.
  void Copy(const DomainCopy& copy, ObjectId target, const Progress& progress);

 private:
  std::vector<ObjectId> Groups(ObjectId domain);
  void CopyUsers(const char* slice, const char* insert, ObjectId source, ObjectId target,
                 ProgressSteps& steps);

  sqlite::Database& database_;
  GroupStore& groups_;
};

}  // namespace mindloft
