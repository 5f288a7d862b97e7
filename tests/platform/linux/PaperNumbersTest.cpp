#include <gtest/gtest.h>

#include <set>

#include "platform/linux/PaperNumbers.h"

namespace mindloft::platform {
namespace {

TEST(PaperNumbersTest, APaperHasTheSameNumberOnEveryPrinterAndNoTwoOfOneHaveTheSame) {
  PaperNumbers small;
  const std::uint16_t a4 = small.Give("iso_a4_210x297mm");
  PaperNumbers large;
  std::set<std::uint16_t> given;
  // So many that some of them begin with the same number.
  constexpr int Papers = 5000;
  for (int paper = 0; paper < Papers; ++paper)
    given.insert(large.Give("custom_" + std::to_string(paper) + "x100mm"));
  EXPECT_EQ(given.size(), static_cast<std::size_t>(Papers));
  EXPECT_GE(*given.begin(), 0x100) << "a number that other systems give another paper";
  EXPECT_EQ(PaperNumbers().Give("iso_a4_210x297mm"), a4);
  EXPECT_EQ(small.Give("iso_a4_210x297mm"), a4) << "asked twice";
  EXPECT_EQ(small.Find("iso_a4_210x297mm"), a4);
  EXPECT_EQ(small.Find("iso_a5_148x210mm"), 0);
}

}  // namespace
}  // namespace mindloft::platform
