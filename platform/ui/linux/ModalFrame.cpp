#include "platform/ui/ModalFrame.h"

#include <gtk/gtk.h>
#include <wx/toplevel.h>

namespace mindloft::platform {

// The desktop gives all input to the modal window that came last.
void ShowAboveModal(wxTopLevelWindow& frame) {
  gtk_window_set_modal(GTK_WINDOW(frame.GetHandle()), TRUE);
}

}  // namespace mindloft::platform
