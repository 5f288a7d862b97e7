#pragma once

#include <optional>
#include <vector>

#include "backend/directory/store/FieldChanges.h"
#include "backend/directory/store/GroupStore.h"
#include "backend/directory/store/StoreParts.h"

namespace mindloft {

/// The knowledge domains.
class DomainStore {
 public:
  DomainStore(const StoreParts& parts, GroupStore& groups) : parts_(parts), groups_(groups) {}

  std::optional<DomainRecord> Find(ObjectId id);
  /// Without their documents.
  std::vector<DomainRecord> Read(const std::vector<ObjectId>& ids);

  DomainRecord Create(const Caller& caller, DomainRecord domain, const DomainCopy& copy,
                      const Progress& progress);
  DomainRecord Change(const Caller& caller, const DomainChange& change);
  void Delete(const Caller& caller, const ObjectVersion& domain, const Progress& progress);

  /// The domain as the change saw it: ObjectNotFound, Conflict.
  DomainRecord Require(const ObjectVersion& domain);

 private:
  void RequireStyle(ObjectId style);
  void PutDocument(DomainRecord& domain, const std::string& document, FieldChanges& changes);

  StoreParts parts_;
  GroupStore& groups_;
};

}  // namespace mindloft
