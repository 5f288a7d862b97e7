#include "platform/ui/AccessibleButton.h"

#include <gtk/gtk.h>
#include <wx/window.h>

namespace mindloft::platform {
namespace {

AtkObject* AccessibleOf(const wxWindow& window) {
  auto* widget = static_cast<GtkWidget*>(window.GetHandle());
  return widget ? gtk_widget_get_accessible(widget) : nullptr;
}

}  // namespace

void PresentAsButton(wxWindow& window, AccessibleButton& button) {
  AtkObject* accessible = AccessibleOf(window);
  if (!accessible) return;
  atk_object_set_role(accessible, ATK_ROLE_PUSH_BUTTON);
  TellButtonName(window, button);
}

void TellButtonName(wxWindow& window, const AccessibleButton& button) {
  if (AtkObject* accessible = AccessibleOf(window))
    atk_object_set_name(accessible, button.AccessibleName().utf8_str());
}

void TellButtonState(wxWindow& window, const AccessibleButton& button) {
  if (AtkObject* accessible = AccessibleOf(window))
    atk_object_notify_state_change(accessible, ATK_STATE_PRESSED, button.IsAccessiblyPressed());
}

}  // namespace mindloft::platform
