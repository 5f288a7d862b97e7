#include "controls/richtext/RichUnits.h"

#include <cmath>

#include "platform/ui/Metrics.h"

namespace mindloft {
namespace {

constexpr double kTenthsPerInch = 254;

}  // namespace

int TenthsToPixels(int tenths, const wxWindow& window) {
  return static_cast<int>(std::lround(tenths * platform::Resolution(&window).x / kTenthsPerInch));
}

int PixelsToTenths(int pixels, const wxWindow& window) {
  return static_cast<int>(std::lround(pixels * kTenthsPerInch / platform::Resolution(&window).x));
}

}  // namespace mindloft
