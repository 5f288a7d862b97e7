#include "platform/ui/MouseWheel.h"

#include "platform/ui/ScrollHelpers.h"
#include "platform/ui/WheelTarget.h"

namespace mindloft::platform {

bool HaveScrollBar(const wxWindow* window) {
  return HasScrollBar(window);
}

// GTK has no window procedures; the event filter sees everything.
void ReplaceWindowProcedure(wxWindow*) {}
void RestoreWindowProcedure(wxWindow*) {}

}  // namespace mindloft::platform
