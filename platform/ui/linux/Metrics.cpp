#include "platform/ui/Metrics.h"

#include <wx/display.h>
#include <wx/settings.h>

namespace mindloft::platform {
namespace {

/// A title bar of the usual desktops, for window managers that tell nothing before a window stands there.
constexpr int UsualCaption = 30;

}  // namespace

ScreenMetrics SystemScreenMetrics() {
  wxDisplay primary;
  auto caption = wxSystemSettings::GetMetric(wxSYS_CAPTION_Y);
  if (caption <= 0) caption = UsualCaption;
  auto area = primary.GetClientArea();
  return {primary.GetGeometry().GetSize(), area.width, area.height - caption, caption};
}

wxSize Resolution(const wxWindow*) {
  // GTK's pixels are logical ones: its scaling to the screen's own is no business of layouts.
  return wxSize(96, 96);
}

}  // namespace mindloft::platform
