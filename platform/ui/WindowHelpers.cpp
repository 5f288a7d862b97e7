#include "platform/ui/WindowHelpers.h"

namespace mindloft::platform {

void ActiveMindloft(const wxString& caption, const wxString& className) {
  if (caption.empty()) return;
  std::vector<WindowHandle> found;
  FindWindowLike(found, 0, "*" + caption, className);
  for (auto window : found) {
    // A hidden window would be shown by writing its placement back.
    if (IsWindowShown(window)) ShowMindloft(window);
  }
}

}  // namespace mindloft::platform
