#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "platform/Printers.h"

namespace mindloft {

/// Both sides of a paper that the console prints on are shorter, in tenths of a millimetre: up to A2 but for
/// a hair.
inline constexpr std::int32_t kLongestSide = 5780;

/// Takes papers that are too large out of the tables, in one walk from the first entry to what was the last:
/// the entry that moves into the place of one that is taken out is not looked at. So the second of two large
/// ones in a row stays, and counts for the bounds.
void ValidatePaper(platform::PrinterPapers& papers);

/// What a page's sides may be, in tenths of a millimetre.
struct PaperBounds {
  std::int32_t least = 0;
  std::int32_t greatest = 0;
};

/// The shortest and the longest side among all papers; nothing where there are none.
std::optional<PaperBounds> BoundsOf(const platform::PrinterPapers& papers);

/// The paper of that size; nothing where there is none. Drivers that count points or whole millimetres round,
/// so half a millimetre makes no difference; the nearest is taken. Of papers of the same size it is the one
/// of the name `liked`, else the first.
std::optional<std::size_t> FindPaper(const platform::PrinterPapers& papers, const platform::PaperSize& size,
                                     const std::string& liked);

}  // namespace mindloft
