#include "platform/ui/Direction.h"

#include <gtk/gtk.h>
#include <wx/window.h>

namespace mindloft::platform {
namespace {

void SetDirection(GtkWidget* widget, gpointer direction) {
  gtk_widget_set_direction(widget, static_cast<GtkTextDirection>(GPOINTER_TO_INT(direction)));
  if (GTK_IS_CONTAINER(widget)) gtk_container_forall(GTK_CONTAINER(widget), SetDirection, direction);
}

}  // namespace

void ApplyDirectionInside(wxWindow& window) {
  const bool mirrored = window.GetLayoutDirection() == wxLayout_RightToLeft;
  SetDirection(window.GetHandle(), GINT_TO_POINTER(mirrored ? GTK_TEXT_DIR_RTL : GTK_TEXT_DIR_LTR));
}

}  // namespace mindloft::platform
