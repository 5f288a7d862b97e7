#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "backend/directory/FoldedText.h"
#include "backend/directory/collation/Collator.h"

namespace mindloft {
namespace {

using Texts = std::vector<std::string>;

std::string KeyOf(LanguageRules rules, const std::string& text) {
  return Collator::Of(rules).SortKey(FoldedText(text, FoldingOf(rules)));
}

TEST(Collator, OrdersNamesAsTheReadersOfALanguageExpect) {
  struct Case {
    const char* what;
    LanguageRules rules;
    Texts sorted;
  };
  const Case cases[] = {
      {"English and German: accents and case last",
       LanguageRules::Neutral,
       {"a b", "Abel", "Achim", "Ägidius", "Ahmed", "Mueller", "Muenz", "Müller", "Strasse", "Straßen",
        "Zoe"}},
      {"digits and signs before letters",
       LanguageRules::Neutral,
       {"_x", "-x", "1x", "x", "Жанна", "ب", "李"}},
      {"Turkish letters stand on their own",
       LanguageRules::Turkish,
       {"Cem", "Çetin", "Gül", "ğa", "ISPARTA", "ışık", "İSTANBUL", "izmir", "Oya", "öz", "su", "şu", "Umut",
        "ünal"}},
      {"Chinese by pinyin, before other scripts",
       LanguageRules::Chinese,
       {"阿", "陈", "李", "刘", "孙", "王", "吴", "张", "周", "Zoe"}},
      {"Japanese by the kana's sequence, kanji behind",
       LanguageRules::Japanese,
       {"Zoe", "あき", "アキラ", "いとう", "かとう", "ガトウ", "さとう", "ん", "亜", "井"}},
      {"Arabic by its alphabet",
       LanguageRules::Arabic,
       {"أحمد", "بدر", "تامر", "جمال", "سمير", "ليلى", "يوسف", "Zoe"}},
  };
  for (const auto& [what, rules, expected] : cases) {
    Texts sorted = expected;
    std::ranges::reverse(sorted);
    std::ranges::sort(sorted, {}, [r = rules](const auto& text) { return KeyOf(r, text); });
    EXPECT_EQ(sorted, expected) << what;
  }
}

TEST(Collator, FindsTheBeginningsOfNamesByTheirLetters) {
  struct Case {
    LanguageRules rules;
    const char* prefix;
    const char* text;
    bool fits;
  };
  const Case cases[] = {
      {LanguageRules::Neutral, "mu", "Müller", true},   {LanguageRules::Neutral, "MÜ", "Muster", true},
      {LanguageRules::Neutral, "mu", "Mahler", false},  {LanguageRules::Neutral, "muller", "Mull", false},
      {LanguageRules::Turkish, "mu", "Müller", false},  {LanguageRules::Turkish, "i", "İzmir", true},
      {LanguageRules::Turkish, "i", "Isparta", false},  {LanguageRules::Turkish, "ı", "Isparta", true},
      {LanguageRules::Neutral, "i", "Isparta", true},   {LanguageRules::Japanese, "か", "ガトウ", true},
      {LanguageRules::Japanese, "か", "さとう", false}, {LanguageRules::Chinese, "李", "李明", true},
      {LanguageRules::Chinese, "李", "刘明", false},    {LanguageRules::Arabic, "أ", "أحمد", true},
      {LanguageRules::Neutral, "", "anything", true},   {LanguageRules::Neutral, "a b", "a bc", true},
      {LanguageRules::Neutral, "abc", "abc李", true},   {LanguageRules::Neutral, "abc", "abc 1", true},
  };
  for (const auto& [rules, prefix, text, fits] : cases) {
    const auto start = Collator::Of(rules).PrefixKey(FoldedText(prefix, FoldingOf(rules)));
    EXPECT_EQ(KeyOf(rules, text).starts_with(start), fits) << int(rules) << ' ' << prefix << ' ' << text;
  }
}

TEST(Collator, KeysHoldNoZeroWhateverTheTextIs) {
  std::mt19937 random(5);
  for (int round = 0; round < 2000; ++round) {
    std::string text;
    for (auto length = random() % 300; length > 0; --length) text += static_cast<char>(random() % 256);
    for (auto rules : kLanguageRules) {
      const auto key = Collator::Of(rules).SortKey(text);
      ASSERT_EQ(key.find('\0'), std::string::npos) << int(rules) << testing::PrintToString(text);
    }
  }
}

TEST(LanguageRules, BelongToTheLanguageWhateverTheCountry) {
  const std::pair<int, LanguageRules> cases[] = {
      {1033, LanguageRules::Neutral}, {1031, LanguageRules::Neutral}, {2057, LanguageRules::Neutral},
      {2052, LanguageRules::Chinese}, {1028, LanguageRules::Chinese}, {1041, LanguageRules::Japanese},
      {1025, LanguageRules::Arabic},  {2049, LanguageRules::Arabic},  {1055, LanguageRules::Turkish},
      {0, LanguageRules::Neutral},    {-1, LanguageRules::Neutral},
  };
  for (const auto& [language, rules] : cases) EXPECT_EQ(RulesOf(language), rules) << language;
}

}  // namespace
}  // namespace mindloft
