#include "platform/ui/VisualStyle.h"

#include <windows.h>
#include <uxtheme.h>
#include <wx/window.h>

namespace mindloft::platform {

void* OpenStyleClass(const wxWindow& window, const wxString& themeClass) {
  return OpenThemeData(window.GetHandle(), themeClass.wc_str());
}

void CloseStyleClass(void* handle) {
  CloseThemeData(handle);
}

}  // namespace mindloft::platform
