#pragma once

#include <list>
#include <string>
#include <string_view>
#include <vector>

#include "backend/directory/Query.h"
#include "backend/directory/collation/LanguageRules.h"
#include "backend/directory/sqlite/Database.h"

namespace mindloft {

/// Windows on the collections that are small enough to be ordered at once: all but the users'. The order of a
/// query is kept until the file changes, so that a page reads its own rows only.
///
/// The journal is one too when a filter is set: the rows whose object or author holds the text.
class CollectionWindows {
 public:
  explicit CollectionWindows(sqlite::Database& database) : database_(database) {}

  std::int64_t Count(const Query& query, LanguageRules rules) { return std::ssize(Get(query, rules).rows); }
  std::vector<ObjectId> Page(const Query& query, std::int64_t first, std::int64_t count, LanguageRules rules);
  std::int64_t FindPrefix(const Query& query, std::string_view prefix, std::int64_t from,
                          LanguageRules rules);
  std::vector<std::int64_t> PositionsOf(const Query& query, const std::vector<ObjectId>& objects,
                                        LanguageRules rules);

 private:
  struct Row {
    bool disabled;    ///< goes before the key, in the order by state
    std::string key;  ///< the sort key of the text that it is ordered by
    ObjectId id;
    auto operator<=>(const Row&) const = default;
  };
  struct Window {
    Query query;
    LanguageRules rules;
    std::vector<Row> rows;
  };
  const Window& Get(const Query& query, LanguageRules rules);
  std::vector<Row> Build(const Query& query, LanguageRules rules);

  sqlite::Database& database_;
  sqlite::FileState state_;
  std::list<Window> windows_;  ///< the last used first
};

}  // namespace mindloft
