#include "platform/ui/TextPlaces.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace mindloft::platform {

bool HasRightToLeftLetters(const wxString& text) {
  // Hebrew to the last of the Arabic blocks, their forms for presentation, and the halves of what lies beyond
  // where characters are stored in two.
  static constexpr std::pair<unsigned, unsigned> kRanges[] = {
      {0x590, 0x8FF},   {0xD802, 0xD803},   {0xD83A, 0xD83B},  {0xFB1D, 0xFDFF},
      {0xFE70, 0xFEFF}, {0x10800, 0x10FFF}, {0x1E800, 0x1EFFF}};
  return std::any_of(text.begin(), text.end(), [](const wxUniChar& each) {
    const unsigned code = each.GetValue();
    return std::any_of(std::begin(kRanges), std::end(kRanges),
                       [code](const auto& range) { return code >= range.first && code <= range.second; });
  });
}

}  // namespace mindloft::platform
