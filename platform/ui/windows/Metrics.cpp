#include "platform/ui/Metrics.h"

#include <windows.h>
#include <wx/window.h>

namespace mindloft::platform {

ScreenMetrics SystemScreenMetrics() {
  return {wxSize(GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)),
          GetSystemMetrics(SM_CXFULLSCREEN), GetSystemMetrics(SM_CYFULLSCREEN),
          GetSystemMetrics(SM_CYCAPTION)};
}

wxSize Resolution(const wxWindow* window) {
  if (window) return window->GetDPI();
  auto screen = GetDC(nullptr);
  wxSize resolution(GetDeviceCaps(screen, LOGPIXELSX), GetDeviceCaps(screen, LOGPIXELSY));
  ReleaseDC(nullptr, screen);
  return resolution;
}

}  // namespace mindloft::platform
