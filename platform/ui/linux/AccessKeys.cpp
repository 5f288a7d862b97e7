#include "platform/ui/AccessKeys.h"

#include <gtk/gtk.h>
#include <wx/stattext.h>
#include <wx/toplevel.h>

namespace mindloft::platform {
namespace {

const wxStaticText* LabelOf(const wxWindow& window, const GtkWidget* widget) {
  for (const wxWindow* child : window.GetChildren()) {
    const auto* label = dynamic_cast<const wxStaticText*>(child);
    if (label && label->m_widget == widget) return label;
    if (child->IsTopLevel()) continue;
    if (const auto* found = LabelOf(*child, widget)) return found;
  }
  return nullptr;
}

/// None when the widget is part of something else, as the text of a button is.
const wxStaticText* LabelOf(const GtkWidget* widget) {
  for (const wxWindow* window : wxTopLevelWindows)
    if (const auto* found = LabelOf(*window, widget)) return found;
  return nullptr;
}

gboolean FollowLabel(GtkLabel* widget, gboolean cycling) {
  // The toolkit leads to widgets that take the focus themselves only: past a control made of several, to
  // whatever stands behind it.
  if (const wxStaticText* label = LabelOf(GTK_WIDGET(widget))) {
    if (wxWindow* next = ControlBehind(*label)) next->SetFocusFromKbd();
    return TRUE;
  }
  gboolean result = FALSE;
  g_signal_chain_from_overridden_handler(widget, cycling, &result);
  return result;
}

}  // namespace

void LeadAccessKeys() {
  static bool led = false;
  if (led) return;
  led = true;
  g_signal_override_class_handler("mnemonic-activate", GTK_TYPE_LABEL, G_CALLBACK(FollowLabel));
}

}  // namespace mindloft::platform
