#include "platform/ui/SearchPicture.h"

#include <gtk/gtk.h>
#include <wx/srchctrl.h>

namespace mindloft::platform {

void SetSearchPicture(wxSearchCtrl& box, const wxBitmapBundle& picture) {
  auto* widget = box.GetHandle();
  if (!GTK_IS_ENTRY(widget) || gtk_widget_get_scale_factor(widget) != 1) return;
  const wxBitmap bitmap = picture.GetBitmap(picture.GetDefaultSize());
  if (bitmap.IsOk())
    gtk_entry_set_icon_from_pixbuf(GTK_ENTRY(widget), GTK_ENTRY_ICON_PRIMARY, bitmap.GetPixbuf());
}

}  // namespace mindloft::platform
