#include "platform/ui/CommonControls.h"

#include <windows.h>
#include <commctrl.h>

namespace mindloft::platform {

bool InitExtendedComboBoxes() {
  INITCOMMONCONTROLSEX request{sizeof request, ICC_USEREX_CLASSES};
  static_assert(sizeof request == 8 && ICC_USEREX_CLASSES == 0x200);
  return InitCommonControlsEx(&request) != FALSE;
}

}  // namespace mindloft::platform
