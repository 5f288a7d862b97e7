#pragma once

#include <optional>
#include <vector>

#include "backend/directory/store/StoreParts.h"

namespace mindloft {

/// The roles. They are built in; only their members change.
class RoleStore {
 public:
  explicit RoleStore(const StoreParts& parts) : parts_(parts) {}
  std::optional<RoleRecord> Find(ObjectId id);
  std::vector<RoleRecord> Read(const std::vector<ObjectId>& ids);

 private:
  StoreParts parts_;
};

}  // namespace mindloft
