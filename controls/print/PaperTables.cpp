#include "controls/print/PaperTables.h"

#include <algorithm>
#include <cstdlib>

namespace mindloft {
namespace {

template <typename Entries>
void RemoveAt(Entries& entries, std::size_t index) {
  entries.erase(entries.begin() + static_cast<typename Entries::difference_type>(index));
}

bool IsSmall(const platform::PaperSize& size) {
  return size.width < kLongestSide && size.height < kLongestSide;
}

}  // namespace

void ValidatePaper(platform::PrinterPapers& papers) {
  // Behind the last of those that are left there is nothing to look at.
  for (std::size_t index = 0; index < papers.Count(); ++index) {
    if (IsSmall(papers.sizes[index])) continue;
    RemoveAt(papers.sizes, index);
    RemoveAt(papers.names, index);
    RemoveAt(papers.numbers, index);
  }
}

std::optional<PaperBounds> BoundsOf(const platform::PrinterPapers& papers) {
  if (papers.IsEmpty()) return std::nullopt;
  const platform::PaperSize& first = papers.sizes.front();
  PaperBounds bounds{std::min(first.width, first.height), std::max(first.width, first.height)};
  for (const platform::PaperSize& size : papers.sizes) {
    bounds.least = std::min({bounds.least, size.width, size.height});
    bounds.greatest = std::max({bounds.greatest, size.width, size.height});
  }
  return bounds;
}

std::optional<std::size_t> FindPaper(const platform::PrinterPapers& papers, const platform::PaperSize& size,
                                     const std::string& liked) {
  constexpr std::int64_t Rounding = 5;
  std::optional<std::size_t> found;
  std::int64_t nearest = 0;
  for (std::size_t index = 0; index < papers.Count(); ++index) {
    const std::int64_t wider = std::abs(std::int64_t{papers.sizes[index].width} - size.width);
    const std::int64_t higher = std::abs(std::int64_t{papers.sizes[index].height} - size.height);
    if (wider > Rounding || higher > Rounding) continue;
    const std::int64_t distance = wider + higher;
    const bool isBetter =
        !found || distance < nearest ||
        (distance == nearest && papers.names[index] == liked && papers.names[*found] != liked);
    if (!isBetter) continue;
    found = index;
    nearest = distance;
  }
  return found;
}

}  // namespace mindloft
