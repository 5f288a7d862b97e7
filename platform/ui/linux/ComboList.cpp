#include "platform/ui/ComboList.h"

#include <wx/combobox.h>

#include "platform/ui/linux/EntryStyle.h"

namespace mindloft::platform {

void DropDownAsList(wxComboBox& box) {
  AddRule(gtk_widget_get_style_context(box.GetHandle()), "* { -GtkComboBox-appears-as-list: true; }");
  // The rule counts from the next drawing on; the box is filled before that.
  g_signal_emit_by_name(box.GetHandle(), "style-updated");
}

}  // namespace mindloft::platform
