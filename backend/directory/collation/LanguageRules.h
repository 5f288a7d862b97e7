#pragma once

#include <array>
#include <cstdint>

namespace mindloft {

/// The rules by which the texts of a language are ordered and searched. Languages without rules of their own
/// share the neutral ones (the root of the Unicode collation data), English and German among them. The
/// numbers are stored.
enum class LanguageRules : std::uint8_t { Neutral = 0, Chinese = 1, Japanese = 2, Arabic = 3, Turkish = 4 };

inline constexpr std::array kLanguageRules = {LanguageRules::Neutral, LanguageRules::Chinese,
                                              LanguageRules::Japanese, LanguageRules::Arabic,
                                              LanguageRules::Turkish};

/// The rules of a language by its Windows identifier (1033 English, 2052 simplified Chinese, ...); the
/// neutral ones for a language that has none of its own.
constexpr LanguageRules RulesOf(int language) {
  // The lower ten bits are the language, whatever the country.
  switch (language & 0x3ff) {
    case 0x01:
      return LanguageRules::Arabic;
    case 0x04:
      return LanguageRules::Chinese;
    case 0x11:
      return LanguageRules::Japanese;
    case 0x1f:
      return LanguageRules::Turkish;
    default:
      return LanguageRules::Neutral;
  }
}

/// How texts lose their case: in Turkish I belongs to ı and İ to i, everywhere else I belongs to i.
enum class Folding : std::uint8_t { Neutral = 0, Turkish = 1 };

inline constexpr std::array kFoldings = {Folding::Neutral, Folding::Turkish};

constexpr Folding FoldingOf(LanguageRules rules) {
  return rules == LanguageRules::Turkish ? Folding::Turkish : Folding::Neutral;
}

}  // namespace mindloft
