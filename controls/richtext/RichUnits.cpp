#include "controls/richtext/RichUnits.h"

#include <cmath>

#include "platform/Lengths.h"
#include "platform/ui/Metrics.h"

namespace mindloft {

int TenthsToPixels(int tenths, const wxWindow& window) {
  return static_cast<int>(
      std::lround(static_cast<double>(tenths) * platform::Resolution(&window).x / platform::kTenthsPerInch));
}

int PixelsToTenths(int pixels, const wxWindow& window) {
  return static_cast<int>(
      std::lround(static_cast<double>(pixels) * platform::kTenthsPerInch / platform::Resolution(&window).x));
}

}  // namespace mindloft
