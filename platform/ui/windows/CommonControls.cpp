#include "platform/ui/CommonControls.h"

#include <windows.h>
#include <commctrl.h>

namespace mindloft::platform {

bool InitExtendedComboBoxes() {
  INITCOMMONCONTROLSEX request{sizeof request, ICC_USEREX_CLASSES};
  static_assert(sizeof request == 8 && ICC_USEREX_CLASSES == 0x200);
  return InitCommonControlsEx(&request) != FALSE;
}

bool UseSystemControls() {
  static const bool areThere = [] {
    // The system's own folder only: a library of that name beside the program is somebody else's.
    const bool loaded = LoadLibraryExW(L"shell32.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32) != nullptr;
    InitCommonControls();
    return loaded;
  }();
  return areThere;
}

}  // namespace mindloft::platform
