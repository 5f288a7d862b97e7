#include "platform/ui/VisualStyle.h"

#include <gtk/gtk.h>
#include <wx/window.h>

namespace mindloft::platform {

void* OpenStyleClass(const wxWindow& window, const wxString&) {
  // The toolkit's theme is one for all classes of controls.
  return window.m_widget ? g_object_ref(gtk_widget_get_settings(window.m_widget)) : nullptr;
}

void CloseStyleClass(void* handle) {
  g_object_unref(handle);
}

}  // namespace mindloft::platform
