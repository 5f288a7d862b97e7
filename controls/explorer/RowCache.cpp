#include "controls/explorer/RowCache.h"

#include <algorithm>

namespace mindloft {

namespace {

const ExplorerRow* RowIn(const std::vector<ExplorerRow>& page, std::int64_t row) {
  const auto place = static_cast<std::size_t>(row % RowCache::kPageRows);
  return place < page.size() ? &page[place] : nullptr;
}

}  // namespace

const ExplorerRow* RowCache::Find(std::int64_t row) {
  if (row < 0) return nullptr;
  const std::int64_t number = row / kPageRows;
  auto page =
      std::find_if(pages_.begin(), pages_.end(), [&](const CachedPage& p) { return p.number == number; });
  if (page == pages_.end()) {
    // Read first: the source may call back into the list, which may forget all pages.
    std::vector<ExplorerRow> rows = rows_.Page(number * kPageRows, kPageRows);
    if (pages_.size() < kPages)
      page = pages_.emplace(pages_.end());
    else
      page = std::min_element(pages_.begin(), pages_.end(),
                              [](const CachedPage& a, const CachedPage& b) { return a.used < b.used; });
    page->number = number;
    page->rows = std::move(rows);
  }
  page->used = ++clock_;
  return RowIn(page->rows, row);
}

const ExplorerRow* RowCache::Peek(std::int64_t row) const {
  if (row < 0) return nullptr;
  const auto page = std::find_if(pages_.begin(), pages_.end(),
                                 [&](const CachedPage& p) { return p.number == row / kPageRows; });
  return page == pages_.end() ? nullptr : RowIn(page->rows, row);
}

}  // namespace mindloft
