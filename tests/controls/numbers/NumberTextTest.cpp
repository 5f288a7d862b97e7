#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "controls/numbers/NumberText.h"
#include "platform/SystemLocale.h"
#include "tests/support/gui/PrivateServices.h"

namespace mindloft::test {
namespace {

class NumberTextTest : public PrivateServices {};

TEST_F(NumberTextTest, ReadsWhatPeopleTypeAndNothingElse) {
  struct Case {
    const char* text;
    std::optional<double> number;
  };
  const Case cases[] = {
      {"0", 0},
      {"-12.5", -12.5},
      {"  7\t", 7},
      {"+3", 3},
      {"5.", 5},
      {".5", 0.5},
      {"1,234,567.25", 1234567.25},
      {"1,2,3", 123},
      {"1,", 1},
      {"1e3", 1000},
      {"1e-400", 0},
      {"2147483648", 2147483648.0},
      {"", {}},
      {"   ", {}},
      {"-", {}},
      {".", {}},
      {",1", {}},
      {"-,1", {}},
      {"1.2,3", {}},
      {"1.2.3", {}},
      {"1-", {}},
      {"--1", {}},
      {"1 2", {}},
      {"12a", {}},
      {"1e", {}},
      {"1e9,9", {}},
      {"0x10", {}},
      {"inf", {}},
      {"nan", {}},
      {"1e400", {}},
      {"\xEF\xBC\x91", {}},  // full-width 1
      {"\xD9\xA1", {}},      // Arabic 1
      {"1\xCC\x81", {}},     // with a combining accent
      {"\xE2\x80\x8F"
       "1",
       {}},                       // behind a right-to-left mark
      {"1\xF0\x9F\x98\x80", {}},  // and an emoji
  };
  const platform::FakeSystemLocale english(1033);
  for (const Case& each : cases)
    EXPECT_EQ(ReadNumber(wxString::FromUTF8(each.text)), each.number) << each.text;
  EXPECT_EQ(ReadNumber(wxString('9', 100000)), std::nullopt);
  EXPECT_EQ(ReadNumber(wxString('0', 900)), 0);
  const Case commas[] = {
      {"29,7", 29.7},  {"-1,5", -1.5},      {"1234,567", 1234.567}, {"0,125", 0.125},    {"1,2345", 1.2345},
      {"1,234", 1234}, {"-12,345", -12345}, {"1,234,5", 12345},     {"1,234.5", 1234.5}, {"1,", 1},
      {",5", {}},      {"1,5e2", 1500},     {"29,7mm", {}}};
  for (const Case& each : commas)
    EXPECT_EQ(ReadNumber(wxString::FromUTF8(each.text), LoneComma::Decimals), each.number) << each.text;
  const platform::FakeSystemLocale japanese(1041);
  EXPECT_EQ(ReadNumber(L"\xFF0D\xFF11\xFF0C\xFF12\xFF13\xFF0E\xFF15"), -123.5);
}

TEST_F(NumberTextTest, WritesUpToFifteenDigits) {
  struct Case {
    double number;
    const char* text;
  };
  const Case cases[] = {{0, "0"},
                        {-0.0, "0"},
                        {12.5, "12.5"},
                        {0.1 + 0.2, "0.3"},
                        {-2147483648.0, "-2147483648"},
                        {123456789012345, "123456789012345"},
                        {1e20, "1E+20"},
                        {1.5e-7, "1.5E-07"},
                        {1234567.891, "1234567.891"}};
  for (const Case& each : cases) {
    EXPECT_EQ(NumberText(each.number), each.text);
    EXPECT_DOUBLE_EQ(ReadNumber(NumberText(each.number)).value(), each.number) << each.text;
  }
}

TEST_F(NumberTextTest, RoundsToWholeNumbers) {
  struct Case {
    double number;
    std::optional<std::int32_t> rounded;
    std::int32_t part;
  };
  constexpr auto least = std::numeric_limits<std::int32_t>::min();
  constexpr auto most = std::numeric_limits<std::int32_t>::max();
  const Case cases[] = {{0.5, 0, 0},
                        {1.5, 2, 1},
                        {2.5, 2, 2},
                        {-0.5, 0, -1},
                        {-1.5, -2, -2},
                        {2147483647.4, most, most},
                        {2147483647.5, {}, most},
                        {-2147483648.5, least, least},
                        {-2147483649.0, {}, least},
                        {1e300, {}, most},
                        {-1e300, {}, least}};
  for (const Case& each : cases) {
    EXPECT_EQ(RoundToWhole(each.number), each.rounded) << each.number;
    EXPECT_EQ(WholePart(each.number), each.part) << each.number;
  }
}

}  // namespace
}  // namespace mindloft::test
