#include <gmock/gmock.h>

#include <string>

#include "controls/print/PaperTables.h"

namespace mindloft::test {
namespace {

using platform::PaperSize;
using platform::PrinterPapers;
using testing::ElementsAreArray;

/// Papers named "0", "1", ... with the numbers 100, 101, ...
PrinterPapers Papers(const std::vector<PaperSize>& sizes) {
  PrinterPapers papers;
  papers.sizes = sizes;
  for (std::size_t index = 0; index < sizes.size(); ++index) {
    papers.names.push_back(std::to_string(index));
    papers.numbers.push_back(static_cast<std::uint16_t>(100 + index));
  }
  return papers;
}

constexpr PaperSize kA4{2100, 2970};
constexpr PaperSize kA5{1480, 2100};
constexpr PaperSize kLarge{5940, 8410};
constexpr PaperSize kLong{1000, 5780};
constexpr PaperSize kJustSmall{5779, 5779};

TEST(PaperTablesTest, OneWalkTakesLargePapersOutAndLooksAtNoneTwice) {
  struct Case {
    const char* what;
    std::vector<PaperSize> sizes;
    std::vector<std::string> left;
  };
  const Case cases[] = {
      {"none", {}, {}},
      {"small ones", {kA4, kJustSmall, kA5}, {"0", "1", "2"}},
      {"either side counts, from 578 mm on", {kA4, kLong, {5780, 100}, kA5}, {"0", "2", "3"}},
      {"the first", {kLarge, kA4, kA5}, {"1", "2"}},
      {"the last", {kA4, kLarge}, {"0"}},
      {"alone", {kLarge}, {}},
      {"two in a row: the second stays", {kLarge, kLong, kA4}, {"1", "2"}},
      {"also at the end", {kA4, kLarge, kLarge}, {"0", "2"}},
      {"also when there is no other", {kLarge, kLong}, {"1"}},
      {"three in a row: the one between them stays", {kLarge, kLong, kLarge, kA4}, {"1", "3"}},
      {"one by one", {kLarge, kA4, kLarge, kA5, kLarge}, {"1", "3"}},
  };
  for (const Case& each : cases) {
    PrinterPapers papers = Papers(each.sizes);
    ValidatePaper(papers);
    EXPECT_THAT(papers.names, ElementsAreArray(each.left)) << each.what;
    ASSERT_EQ(papers.sizes.size(), each.left.size()) << each.what;
    ASSERT_EQ(papers.numbers.size(), each.left.size()) << each.what;
    for (std::size_t index = 0; index < each.left.size(); ++index) {
      const std::size_t before = std::stoul(each.left[index]);
      EXPECT_EQ(papers.sizes[index], each.sizes[before]) << each.what;
      EXPECT_EQ(papers.numbers[index], 100 + before) << each.what;
    }
  }
}

TEST(PaperTablesTest, BoundsAreTheShortestAndTheLongestSideOfAll) {
  EXPECT_FALSE(BoundsOf({}));
  const auto bounds = BoundsOf(Papers({kA4, {4318, 2794}, {984, 1905}}));
  ASSERT_TRUE(bounds);
  EXPECT_EQ(bounds->least, 984);
  EXPECT_EQ(bounds->greatest, 4318);
}

TEST(PaperTablesTest, APaperIsFoundByItsSizeAsDriversRoundIt) {
  const PrinterPapers papers = Papers({kA5, {2099, 2970}, kA4, kA4, {2159, 2794}});
  struct Case {
    PaperSize size;
    const char* liked;
    int found;  // -1: none
  };
  for (const Case& each :
       {Case{kA5, "", 0}, Case{kA4, "", 2}, Case{kA4, "3", 3}, Case{kA4, "1", 2}, Case{{2099, 2970}, "3", 1},
        Case{{2160, 2790}, "", 4}, Case{{2160, 2788}, "", -1}, Case{{2970, 2100}, "", -1},
        Case{{0, 0}, "", -1}, Case{{2147483647, -2147483647 - 1}, "", -1}}) {
    const auto found = FindPaper(papers, each.size, each.liked);
    EXPECT_EQ(found ? static_cast<int>(*found) : -1, each.found)
        << each.size.width << " x " << each.size.height;
  }
}

}  // namespace
}  // namespace mindloft::test
