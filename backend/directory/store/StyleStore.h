#pragma once

#include <optional>
#include <vector>

#include "backend/directory/store/StoreParts.h"

namespace mindloft {

/// The styles in which knowledge domains are shown.
class StyleStore {
 public:
  explicit StyleStore(const StoreParts& parts) : parts_(parts) {}

  std::optional<StyleRecord> Find(ObjectId id);
  std::vector<StyleRecord> Read(const std::vector<ObjectId>& ids);

  StyleRecord Create(const Caller& caller, StyleRecord style);
  StyleRecord Change(const Caller& caller, const StyleChange& change);
  /// Domains that use the style have none afterwards; that counts as a change of theirs.
  void Delete(const Caller& caller, const ObjectVersion& style);

 private:
  StyleRecord Require(const ObjectVersion& style);
  void ReleaseDomains(const Caller& caller, ObjectId style);

  StoreParts parts_;
};

}  // namespace mindloft
