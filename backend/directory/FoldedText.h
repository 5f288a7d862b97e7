#pragma once

#include <string>
#include <string_view>

#include "backend/directory/collation/LanguageRules.h"

namespace mindloft {

/// The text in the form in which texts are compared, ordered and searched: Unicode compatibility case folding
/// (NFKC, UAX #44 NFKC_Casefold), so that case, full-width forms, composition and invisible characters make
/// no difference. Broken UTF-8 is taken byte by byte as U+FFFD.
std::string FoldedText(std::string_view utf8);

/// The same with the case rules of a language (Unicode's SpecialCasing.txt for the Turkish I). What must be
/// unique is always folded neutrally.
std::string FoldedText(std::string_view utf8, Folding folding);

}  // namespace mindloft
