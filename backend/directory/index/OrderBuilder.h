#pragma once

#include <array>
#include <vector>

#include "backend/directory/Changes.h"
#include "backend/directory/collation/LanguageRules.h"
#include "backend/directory/index/FoldedUser.h"
#include "backend/directory/index/IdSet.h"
#include "backend/directory/sqlite/Database.h"
#include "backend/directory/store/ProgressSteps.h"

namespace mindloft {

/// Sorts all users of a file by the rules of a language that the file does not keep yet, and stores the
/// orders. Others can change the file while it sorts: only storing, which is soon done, locks it.
class OrderBuilder {
 public:
  OrderBuilder(sqlite::Database& database, LanguageRules rules, std::size_t blockSize)
      : database_(database), rules_(rules), blockSize_(blockSize) {}

  /// Nothing happens when the file keeps them. DirectoryBusy within a transaction; Cancelled, and nothing has
  /// changed, when `progress` says so.
  void Run(const Progress& progress);

 private:
  using SortedIds = std::array<std::vector<PackedId>, kOrders.size()>;
  bool IsBuilt();
  SortedIds Sort(ProgressSteps& steps, std::int64_t users);
  void Store(const SortedIds& sorted, ProgressSteps& steps);
  void StoreTexts(ProgressSteps& steps);
  std::int64_t Users();

  sqlite::Database& database_;
  LanguageRules rules_;
  std::size_t blockSize_;
};

}  // namespace mindloft
