#include "platform/ui/ScrollHelpers.h"

#include <wx/settings.h>

#include <algorithm>

namespace mindloft::platform {
namespace {

constexpr std::uint32_t SystemColor = 0x80000000;

unsigned char Mixed(unsigned char front, unsigned char back, int percent) {
  return static_cast<unsigned char>((front * percent + back * (100 - percent) + 50) / 100);
}

}  // namespace

bool EnumProc(WindowHandle window, const wxString& className) {
  return ClassNameOf(window) == className;
}

WindowHandle GetWndByType(WindowHandle parent, const wxString& className) {
  auto windows = EnumAllWindows(parent);
  auto found = std::find_if(windows.begin(), windows.end(),
                            [&](WindowHandle window) { return EnumProc(window, className); });
  return found == windows.end() ? 0 : *found;
}

wxColour TranslateColor(std::uint32_t color) {
  if (color & SystemColor) {
    // The toolkit numbers the system's colours as Windows does.
    auto index = color & 0xFF;
    if (index < wxSYS_COLOUR_MAX) return wxSystemSettings::GetColour(static_cast<wxSystemColour>(index));
    return *wxBLACK;
  }
  return wxColour(static_cast<unsigned char>(color & 0xFF), static_cast<unsigned char>(color >> 8 & 0xFF),
                  static_cast<unsigned char>(color >> 16 & 0xFF));
}

wxColour BlendColor(const wxColour& front, const wxColour& back, int percent) {
  percent = std::clamp(percent, 0, 100);
  return wxColour(Mixed(front.Red(), back.Red(), percent), Mixed(front.Green(), back.Green(), percent),
                  Mixed(front.Blue(), back.Blue(), percent));
}

}  // namespace mindloft::platform
