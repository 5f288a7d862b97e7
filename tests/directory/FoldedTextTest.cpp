#include <gtest/gtest.h>

#include "backend/directory/FoldedText.h"

namespace mindloft {
namespace {

TEST(FoldedText, MakesNoDifferenceOfCaseWidthCompositionAndInvisibleCharacters) {
  struct Case {
    const char* what;
    std::string text, folded;
  };
  const Case cases[] = {
      {"empty", "", ""},
      {"ASCII", "Zoe MILLER_09@[", "zoe miller_09@["},
      {"control characters stay", std::string("A\0\t\x01", 4), std::string("a\0\t\x01", 4)},
      {"full-width letters and digits", "Ａｂ１２", "ab12"},
      {"half-width katakana", "ｶﾞ", "ガ"},
      {"sharp s", "Straße GROẞ", "strasse gross"},
      {"dotted capital I", "İ", "i\xCC\x87"},
      {"dotless i stays another letter", "ı", "ı"},
      {"combining accent", "Cafe\xCC\x81", "café"},
      {"composed accent", "CAFÉ", "café"},
      {"order of two accents", "a\xCC\xA3\xCC\x82", "ậ"},
      {"other order of them", "a\xCC\x82\xCC\xA3", "ậ"},
      {"joiners and direction marks",
       "a\xE2\x80\x8D\xE2\x80\x8F\xE2\x80\xAE\xC2\xAD"
       "b",
       "ab"},
      {"nothing but invisible characters", "\xE2\x80\x8D\xEF\xBB\xBF", ""},
      {"emoji", "A👍🏽", "a👍🏽"},
      {"Arabic presentation forms", "ﻼ", "لا"},
      {"ligature", "ﬁx", "fix"},
      {"final sigma", "ΣΑΣς", "σασσ"},
      {"Cyrillic", "ОЛЬГА", "ольга"},
      {"broken byte",
       "A\xFF"
       "B",
       "a\xEF\xBF\xBD"
       "b"},
      {"half a character at the end", "\xE4\xBC", "\xEF\xBF\xBD\xEF\xBF\xBD"},
      {"overlong form", "\xC0\xAF", "\xEF\xBF\xBD\xEF\xBF\xBD"},
      {"surrogate", "\xED\xA0\x80", "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"},
  };
  for (const auto& [what, text, folded] : cases) {
    EXPECT_EQ(FoldedText(text), folded) << what;
    EXPECT_EQ(FoldedText(folded), folded) << what << ", folded twice";
  }
}

TEST(FoldedText, TakesTheTurkishLettersForWhatTheyAre) {
  struct Case {
    const char* what;
    std::string text, folded;
  };
  const Case cases[] = {
      {"dotted", "İSTANBUL istanbul", "istanbul istanbul"},
      {"dotless", "ISPARTA ısparta", "ısparta ısparta"},
      {"a dot above of its own", "I\xCC\x87zmir", "izmir"},
      {"full-width letters", "ＩＤ", "ıd"},
      {"sharp s and accents as elsewhere", "Straße CAFE\xCC\x81", "strasse café"},
      {"broken byte", "I\xFF", "ı\xEF\xBF\xBD"},
  };
  for (const auto& [what, text, folded] : cases) {
    EXPECT_EQ(FoldedText(text, Folding::Turkish), folded) << what;
    EXPECT_EQ(FoldedText(folded, Folding::Turkish), folded) << what << ", folded twice";
  }
}

}  // namespace
}  // namespace mindloft
