#pragma once

#include "backend/directory/Changes.h"
#include "backend/directory/sqlite/Database.h"
#include "backend/directory/store/JsonObject.h"

namespace mindloft {

/// Removes a domain with its groups, their members and its users' access, slice by slice.
class DomainRemover {
 public:
  explicit DomainRemover(sqlite::Database& database) : database_(database) {}
  /// Adds to `before` what went with the domain.
  void Remove(ObjectId domain, JsonObject& before, const Progress& progress);

 private:
  struct Group {
    ObjectId id;
    std::string name;
    std::int64_t members;
  };
  std::vector<Group> Groups(ObjectId domain);

  sqlite::Database& database_;
};

}  // namespace mindloft
