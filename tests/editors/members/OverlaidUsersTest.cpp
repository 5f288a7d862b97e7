#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "backend/tessaline/Text.h"
#include "controls/rows/RecordRows.h"
#include "editors/members/OverlaidUsers.h"
#include "tests/support/gui/PrivateServices.h"

namespace mindloft::test {

class OverlaidUsersTest : public PrivateServices {
 protected:
  static ExplorerRow Row(int number) {
    // Few names, so that beginnings, hits of a filter and equal texts are common.
    const wxString name = wxString::Format("%c%02d", 'a' + number % 4, number % 50);
    return {JoinFields({name, wxString::Format("full %d", number % 7), "d"}), wxString::Format("%d", number),
            0};
  }
  static std::vector<wxString> Keys(const std::vector<ExplorerRow>& rows) {
    std::vector<wxString> keys;
    for (const auto& row : rows) keys.push_back(row.key);
    return keys;
  }
};

// Against lists that are made whole.
TEST_F(OverlaidUsersTest, ShowsWhoComesBeforeWhoStays) {
  std::mt19937 random(5);
  const auto below = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
  for (int round = 0; round < 60; ++round) {
    // From a few changes of many users to many of few.
    const int stored = 1 + below(300);
    std::vector<ExplorerRow> storedRows, staying, coming;
    MemberItems items;
    for (int i = 0; i < stored; ++i) storedRows.push_back(Row(i));
    const int changes = below(round % 2 ? 4 : stored);
    for (int i = 0; i < changes; ++i) items.Add({Row(below(stored)), ToBeRemoved});
    for (int i = 0; i < below(20); ++i) items.Add({Row(stored + i), ToBeAdded});
    for (const auto& row : storedRows)
      if (!items.Find(row.key)) staying.push_back(row);
    OverlaidUsers shown(std::make_shared<ListedUsers>(storedRows), items, ToBeAdded);
    ListedUsers first(items.Rows(ToBeAdded)), rest(staying);

    for (const wxString filter : {"", "a", "full 3", "nobody"}) {
      for (const int column : {0, 1}) {
        const bool descending = below(2) == 1;
        for (ExplorerRows* rows : {static_cast<ExplorerRows*>(&shown), static_cast<ExplorerRows*>(&first),
                                   static_cast<ExplorerRows*>(&rest)}) {
          rows->Filter(filter);
          rows->Sort(column, descending);
        }
        auto expected = Keys(first.Page(0, 1000));
        for (const auto& key : Keys(rest.Page(0, 1000))) expected.push_back(key);
        const auto count = static_cast<std::int64_t>(expected.size());
        ASSERT_EQ(shown.Count(), count);
        ASSERT_EQ(Keys(shown.Page(0, count + 5)), expected);
        const int from = below(static_cast<int>(count) + 1);
        const auto part = Keys(shown.Page(from, 7));
        ASSERT_TRUE(std::equal(part.begin(), part.end(), expected.begin() + from));
        auto asked = expected;
        for (const auto& item : items)
          if (item.Statu() == ToBeRemoved) asked.push_back(item.Id());
        const auto positions = shown.PositionsOf(asked);
        ASSERT_EQ(positions.size(), asked.size());
        for (std::int64_t i = 0; i < std::ssize(asked); ++i) {
          const auto place = static_cast<std::size_t>(i);
          ASSERT_EQ(positions[place], i < count ? i : -1);
          ASSERT_EQ(shown.PositionOf(asked[place]), positions[place]);
        }

        const wxString prefix = column == 0 ? wxString::Format("%c0", 'a' + below(4)) : wxString("full 5");
        std::int64_t found = -1;
        for (std::int64_t step = 0; step < count && found < 0; ++step) {
          const auto row = shown.Page((from + step) % count, 1).at(0).fields;
          const wxString text = column == 0 ? row.BeforeFirst(wxUniChar(1)) : row.AfterFirst(wxUniChar(1));
          if (text.StartsWith(prefix)) found = (from + step) % count;
        }
        ASSERT_EQ(shown.FindPrefix(prefix, from), found) << prefix << " from " << from << " of " << count;
      }
    }
    shown.Filter(wxString());
    EXPECT_EQ(shown.TotalCount(), shown.Count());
  }
}

TEST_F(OverlaidUsersTest, FollowsTheItems) {
  MemberItems items;
  OverlaidUsers shown(std::make_shared<ListedUsers>(std::vector<ExplorerRow>{Row(0), Row(1)}), items,
                      ToBeAdded);
  items.Add({Row(1), ToBeRemoved});
  items.Add({Row(2), ToBeAdded});
  shown.ItemsChanged();
  EXPECT_EQ(Keys(shown.Page(0, 5)), (std::vector<wxString>{"2", "0"}));
  EXPECT_EQ(items.Ids(ToBeAdded), "2");
  EXPECT_EQ(items.Ids(ToBeRemoved), "1");
  items.Drop("1");
  items.Add({Row(3), ToBeAdded});
  shown.ItemsChanged();
  EXPECT_EQ(Keys(shown.Page(0, 5)), (std::vector<wxString>{"2", "3", "0", "1"}));
  EXPECT_EQ(items.Ids(ToBeAdded), "2;3");
  // Somebody else has stored one of those who are to come.
  items.Add({Row(1), ToBeAdded});
  shown.ItemsChanged();
  EXPECT_EQ(Keys(shown.Page(0, 5)), (std::vector<wxString>{"1", "2", "3", "0"}));
}

}  // namespace mindloft::test
