#include <gtest/gtest.h>

#include <random>
#include <set>

#include "controls/explorer/RowRanges.h"

namespace mindloft::test {

TEST(RowRangesTest, HoldsTheSameRowsAsASetOfRows) {
  std::mt19937 random(11);
  RowRanges ranges;
  std::set<std::int64_t> rows;
  for (int step = 0; step < 2000; ++step) {
    const std::int64_t first = random() % 60;
    const std::int64_t last = first + static_cast<std::int64_t>(random() % 9) - 1;
    const bool add = random() % 2 == 0;
    add ? ranges.Add({first, last}) : ranges.Remove({first, last});
    for (std::int64_t row = first; row <= last; ++row) add ? void(rows.insert(row)) : void(rows.erase(row));
    ASSERT_EQ(ranges.Count(), static_cast<std::int64_t>(rows.size()));
    for (std::int64_t row = 0; row < 70; ++row) ASSERT_EQ(ranges.Contains(row), rows.count(row) > 0) << row;
    // One form only for one set, or equality would not tell a change.
    ASSERT_EQ(ranges, RowRanges::FromRows({rows.begin(), rows.end()}));
    ASSERT_EQ(ranges.Complement(70).Count(), 70 - ranges.Count());
    ASSERT_EQ(ranges.Complement(70).Complement(70), ranges);
  }
}

}  // namespace mindloft::test
