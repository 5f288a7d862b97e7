#pragma once

#include <cstdint>
#include <list>
#include <string>

#include "backend/directory/Query.h"
#include "backend/directory/index/SearchTexts.h"
#include "backend/directory/index/Selection.h"
#include "backend/directory/sqlite/Database.h"

namespace mindloft {

/// The selections that queries ask for; the last few are remembered until the file changes.
class Selections {
 public:
  /// What tells one selection from another. `filter` is folded.
  struct Key {
    Collection collection = Collection::Users;
    ObjectId scope = 0;
    std::string filter;
    bool operator==(const Key&) const = default;
  };

  Selections(sqlite::Database& database, SearchTexts& texts, UserOrder& users)
      : database_(database), texts_(texts), users_(users) {}

  void Forget() { remembered_.clear(); }
  /// Valid until the next call.
  Selection& Get(const Key& key);

 private:
  struct Entry {
    Key key;
    Selection selection;
  };
  Entry* Find(const Key& key);
  IdSet Select(const Key& key);
  IdSet Search(const std::string& filter);
  IdSet Scoped(Collection collection, ObjectId scope);
  IdSet Members(const char* sql, ObjectId scope);
  IdSet AllUsers();

  sqlite::Database& database_;
  SearchTexts& texts_;
  UserOrder& users_;
  std::list<Entry> remembered_;  // the last used first
};

}  // namespace mindloft
