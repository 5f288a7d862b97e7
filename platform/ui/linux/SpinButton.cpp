#include "platform/ui/SpinButton.h"

#include <gtk/gtk.h>
#include <wx/spinbutt.h>

namespace mindloft::platform {

int LeastHeight(const wxSpinButton& button) {
  int least = 0;
  gtk_widget_get_preferred_height(button.m_widget, &least, nullptr);
  return least;
}

}  // namespace mindloft::platform
