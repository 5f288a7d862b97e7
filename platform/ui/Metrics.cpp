#include "platform/ui/Metrics.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace mindloft::platform {
namespace {

constexpr double TwipsPerInch = 1440.0;
std::optional<ScreenMetrics> fakeScreen;

/// Rounded to nearest; what does not fit becomes the nearest that does.
int Rounded(double value) {
  constexpr double Least = std::numeric_limits<int>::min();
  constexpr double Greatest = std::numeric_limits<int>::max();
  return static_cast<int>(std::clamp(std::round(value), Least, Greatest));
}

}  // namespace

ScreenMetrics GetScreenMetrics() {
  return fakeScreen ? *fakeScreen : SystemScreenMetrics();
}

double TwipsPerPixelX(const wxWindow* window) {
  return TwipsPerInch / Resolution(window).x;
}
double TwipsPerPixelY(const wxWindow* window) {
  return TwipsPerInch / Resolution(window).y;
}
int TwipsToPixelsX(int twips, const wxWindow* window) {
  return Rounded(twips / TwipsPerPixelX(window));
}
int TwipsToPixelsY(int twips, const wxWindow* window) {
  return Rounded(twips / TwipsPerPixelY(window));
}
int PixelsToTwipsX(int pixels, const wxWindow* window) {
  return Rounded(pixels * TwipsPerPixelX(window));
}
int PixelsToTwipsY(int pixels, const wxWindow* window) {
  return Rounded(pixels * TwipsPerPixelY(window));
}

FakeScreen::FakeScreen(const ScreenMetrics& metrics) {
  fakeScreen = metrics;
}
FakeScreen::~FakeScreen() {
  fakeScreen.reset();
}

}  // namespace mindloft::platform
