#pragma once

#include <wx/gdicmn.h>

class wxWindow;

namespace mindloft::platform {

/// Sizes of the primary screen in pixels, as `GetSystemMetrics` gives them; read at each call.
struct ScreenMetrics {
  wxSize screen;             ///< SM_CXSCREEN, SM_CYSCREEN
  int fullScreenWidth = 0;   ///< SM_CXFULLSCREEN: the client area of a window over the whole working area
  int fullScreenHeight = 0;  ///< SM_CYFULLSCREEN
  int captionHeight = 0;     ///< SM_CYCAPTION
};
ScreenMetrics GetScreenMetrics();

// The one place where twips (1/1440 inch) meet pixels. `window` tells the screen's resolution; null: the
// primary screen.

double TwipsPerPixelX(const wxWindow* window = nullptr);
double TwipsPerPixelY(const wxWindow* window = nullptr);
int TwipsToPixelsX(int twips, const wxWindow* window = nullptr);
int TwipsToPixelsY(int twips, const wxWindow* window = nullptr);
int PixelsToTwipsX(int pixels, const wxWindow* window = nullptr);
int PixelsToTwipsY(int pixels, const wxWindow* window = nullptr);

/// Puts another screen in the place of the real one for a test, until it goes.
class FakeScreen {
 public:
  explicit FakeScreen(const ScreenMetrics& metrics);
  ~FakeScreen();
  FakeScreen(const FakeScreen&) = delete;
  FakeScreen& operator=(const FakeScreen&) = delete;
};

/// The real one.
ScreenMetrics SystemScreenMetrics();
/// Pixels per inch that sizes of this window, or of the primary screen, are laid out for.
wxSize Resolution(const wxWindow* window);

}  // namespace mindloft::platform
