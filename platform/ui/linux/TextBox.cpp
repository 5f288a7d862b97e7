#include "platform/ui/TextBox.h"

#include <gtk/gtk.h>
#include <wx/textctrl.h>

namespace mindloft::platform {
namespace {

AtkObject* AccessibleOf(const wxTextCtrl& box) {
  // The widget of a box of many lines stands inside one that scrolls.
  GtkWidget* widget = box.m_widget;
  if (GTK_IS_SCROLLED_WINDOW(widget)) widget = gtk_bin_get_child(GTK_BIN(widget));
  return widget ? gtk_widget_get_accessible(widget) : nullptr;
}

}  // namespace

void SetPasswordCharacter(wxTextCtrl& box, char32_t character) {
  if (!GTK_IS_ENTRY(box.m_widget)) return;
  auto* entry = GTK_ENTRY(box.m_widget);
  gtk_entry_set_visibility(entry, character == 0);
  // Input methods neither learn nor suggest what is secret.
  gtk_entry_set_input_purpose(entry, character ? GTK_INPUT_PURPOSE_PASSWORD : GTK_INPUT_PURPOSE_FREE_FORM);
  if (character)
    gtk_entry_set_invisible_char(entry, character);
  else
    gtk_entry_unset_invisible_char(entry);
}

void SetAccessibleName(wxTextCtrl& box, std::function<wxString()> name) {
  box.Bind(wxEVT_SET_FOCUS, [&box, name = std::move(name)](wxFocusEvent& event) {
    event.Skip();
    if (AtkObject* accessible = AccessibleOf(box)) atk_object_set_name(accessible, name().utf8_str());
  });
}

wxString AccessibleName(wxTextCtrl& box) {
  AtkObject* accessible = AccessibleOf(box);
  const char* name = accessible ? atk_object_get_name(accessible) : nullptr;
  return name ? wxString::FromUTF8(name) : wxString();
}

int LineBreakPositions() {
  return 1;
}

}  // namespace mindloft::platform
