#pragma once

#include <vector>

#include "backend/directory/collation/LanguageRules.h"
#include "backend/directory/sqlite/Database.h"

namespace mindloft {

/// Which languages' rules a file keeps the users sorted by (table user_rules), each with the edition of the
/// rules that did it: every program that changes users keeps all of them up to date, whatever its own
/// language, or takes out those that it cannot keep.
class StoredRules {
 public:
  explicit StoredRules(sqlite::Database& database) : database_(database) {}
  static void CreateTable(sqlite::Database& database);

  /// The rules that are kept in the edition that this program knows.
  std::vector<LanguageRules> Current();
  bool Has(LanguageRules rules);
  /// Says that the orders by these rules are complete.
  void Add(LanguageRules rules);
  /// Takes out the orders of this program's rules, or of all.
  void Remove(LanguageRules rules);
  void RemoveAll();
  /// Takes out what is sorted by rules, or editions of them, that this program does not know.
  void RemoveForeign();

 private:
  struct Row {
    std::int64_t number;
    bool current;
  };
  std::vector<Row> Rows();
  void RemoveNumber(std::int64_t number);
  sqlite::Database& database_;
};

}  // namespace mindloft
