#pragma once

#include <cstdint>
#include <vector>

#include "controls/explorer/ExplorerRows.h"

namespace mindloft {

/// The few pages of a row source that were used last, so that painting and moving about does not ask again.
class RowCache {
 public:
  /// Rows of a page (a screen shows one or two), and pages kept: about 2,000 rows.
  static constexpr std::int64_t kPageRows = 64;
  static constexpr std::size_t kPages = 32;

  explicit RowCache(ExplorerRows& rows) : rows_(rows) {}

  /// Forgets every row: the source answers differently from now on.
  void Clear() { pages_.clear(); }
  /// The row of that position, valid until the next call; nothing when it is not there (any more).
  const ExplorerRow* Find(std::int64_t row);
  /// The same, but never asks the source.
  const ExplorerRow* Peek(std::int64_t row) const;

 private:
  struct CachedPage {
    std::int64_t number = 0;
    std::uint64_t used = 0;
    std::vector<ExplorerRow> rows;
  };

  ExplorerRows& rows_;
  std::vector<CachedPage> pages_;
  std::uint64_t clock_ = 0;
};

}  // namespace mindloft
