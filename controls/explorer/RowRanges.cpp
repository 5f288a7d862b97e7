#include "controls/explorer/RowRanges.h"

#include <algorithm>

namespace mindloft {

RowRanges RowRanges::FromRows(std::vector<std::int64_t> rows) {
  std::sort(rows.begin(), rows.end());
  RowRanges result;
  for (const std::int64_t row : rows) {
    auto& ranges = result.ranges_;
    if (!ranges.empty() && ranges.back().last >= row) continue;
    if (!ranges.empty() && ranges.back().last + 1 == row)
      ranges.back().last = row;
    else
      ranges.push_back({row, row});
    ++result.count_;
  }
  return result;
}

bool RowRanges::Contains(std::int64_t row) const {
  const auto after =
      std::upper_bound(ranges_.begin(), ranges_.end(), row,
                       [](std::int64_t value, const RowRange& range) { return value < range.first; });
  return after != ranges_.begin() && std::prev(after)->last >= row;
}

void RowRanges::Add(RowRange range) {
  if (range.last < range.first) return;
  // The ranges that touch or overlap the new one become one with it.
  const auto begin =
      std::lower_bound(ranges_.begin(), ranges_.end(), range.first,
                       [](const RowRange& present, std::int64_t value) { return present.last + 1 < value; });
  auto end = begin;
  while (end != ranges_.end() && end->first <= range.last + 1) {
    range.first = std::min(range.first, end->first);
    range.last = std::max(range.last, end->last);
    count_ -= end->Size();
    ++end;
  }
  count_ += range.Size();
  ranges_.insert(ranges_.erase(begin, end), range);
}

void RowRanges::Remove(RowRange range) {
  if (range.last < range.first) return;
  const auto begin =
      std::lower_bound(ranges_.begin(), ranges_.end(), range.first,
                       [](const RowRange& present, std::int64_t value) { return present.last < value; });
  std::vector<RowRange> rest;
  auto end = begin;
  while (end != ranges_.end() && end->first <= range.last) {
    count_ -= end->Size();
    if (end->first < range.first) rest.push_back({end->first, range.first - 1});
    if (end->last > range.last) rest.push_back({range.last + 1, end->last});
    ++end;
  }
  for (const RowRange& part : rest) count_ += part.Size();
  ranges_.insert(ranges_.erase(begin, end), rest.begin(), rest.end());
}

void RowRanges::Clear() {
  ranges_.clear();
  count_ = 0;
}

RowRanges RowRanges::Complement(std::int64_t rows) const {
  RowRanges result;
  if (rows > 0) result.Add({0, rows - 1});
  for (const RowRange& range : ranges_) result.Remove(range);
  return result;
}

}  // namespace mindloft
