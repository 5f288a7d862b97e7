#include <gtest/gtest.h>

#include "controls/numbers/FilterKey.h"
#include "platform/SystemLocale.h"

namespace mindloft::test {
namespace {

constexpr int kJapanese = 1041;
constexpr int kEnglish = 1033;
constexpr int kWideFive = 0xFF15;

TEST(FilterKeyTest, CancelsWhatIsNotPermittedOrIsExcluded) {
  struct Case {
    int locale;
    const char* characters;
    int key;
    bool onlyThese;
    int filtered;
  };
  const Case cases[] = {
      {kEnglish, "12345", '5', true, '5'},
      {kEnglish, "12345", 'x', true, 0},
      {kEnglish, "12345", '5', false, 0},
      {kEnglish, "12345", 'x', false, 'x'},
      {kEnglish, "", 'x', true, 0},
      {kEnglish, "", 'x', false, 'x'},
      {kEnglish, "12345\b", 8, true, 8},
      {kEnglish, "12345", kWideFive, true, 0},
      {kEnglish, "12345", kWideFive, false, kWideFive},
      {kEnglish, "12345", 0x1F600, true, 0},
      {kEnglish, "12345", 0, false, 0},
      {kJapanese, "12345", kWideFive, true, '5'},
      {kJapanese, "12345", kWideFive, false, 0},
      {kJapanese, "12345", 0xFF16, true, 0},
      {kJapanese, "12345", 0xFF16, false, 0xFF16},  // excluded nothing: as it was typed
      {kJapanese, "\\/:", 0xFF0F, false, 0},
      {kJapanese, "12345", 0x1F600, true, 0},
      {kJapanese, "12345", 0xD83D, true, 0},  // half of a pair
  };
  for (const Case& each : cases) {
    const platform::FakeSystemLocale locale(static_cast<std::uint32_t>(each.locale));
    int key = each.key;
    FilterKey(each.characters, key, each.onlyThese);
    EXPECT_EQ(key, each.filtered) << each.locale << " \"" << each.characters << "\" " << each.key;
  }
}

TEST(FilterKeyTest, EveryDoubleByteLocaleKnowsFullWidthDigits) {
  for (const std::uint32_t number : {1028U, 1041U, 1042U, 2052U, 3076U, 4100U, 5124U, 1033U, 1031U, 127U}) {
    const platform::FakeSystemLocale locale(number);
    int key = kWideFive;
    FilterKey("5", key, true);
    const bool latin = number == 1033 || number == 1031 || number == 127;
    EXPECT_EQ(key, latin ? 0 : '5') << number;
    EXPECT_EQ(NarrowText(L"a\xFF11\xFF0E\xFF12\x3000"),
              latin ? wxString(L"a\xFF11\xFF0E\xFF12\x3000") : "a1.2 ");
  }
}

}  // namespace
}  // namespace mindloft::test
