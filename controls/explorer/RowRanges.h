#pragma once

#include <cstdint>
#include <vector>

namespace mindloft {

/// Rows `first` to `last`, both included.
struct RowRange {
  std::int64_t first = 0;
  std::int64_t last = 0;
  std::int64_t Size() const { return last - first + 1; }
  bool operator==(const RowRange&) const = default;
};

/// A set of row numbers, kept as sorted, disjoint, non-adjacent ranges: a million rows in a row cost as much
/// as one.
class RowRanges {
 public:
  static RowRanges FromRows(std::vector<std::int64_t> rows);

  bool Contains(std::int64_t row) const;
  /// How many rows there are in the set.
  std::int64_t Count() const { return count_; }
  bool Empty() const { return ranges_.empty(); }
  const std::vector<RowRange>& Ranges() const { return ranges_; }

  void Add(RowRange range);
  void Remove(RowRange range);
  void Clear();
  /// The rows from 0 to `rows` - 1 that are not in the set.
  RowRanges Complement(std::int64_t rows) const;

  bool operator==(const RowRanges&) const = default;

 private:
  std::vector<RowRange> ranges_;
  std::int64_t count_ = 0;
};

}  // namespace mindloft
