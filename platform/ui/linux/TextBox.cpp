#include "platform/ui/TextBox.h"

#include <gtk/gtk.h>
#include <wx/textctrl.h>

#include <algorithm>
#include <string>

#include "platform/ui/linux/EntryStyle.h"

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

void LiftTextLimit(wxTextCtrl&) {}

void PutInsideFrame(wxTextCtrl& box, int around) {
  if (!GTK_IS_ENTRY(box.m_widget)) return;
  const auto style = EntryStyle(box.m_widget, {});
  GtkBorder padding, border;
  gtk_style_context_get_padding(style.get(), GTK_STATE_FLAG_NORMAL, &padding);
  gtk_style_context_get_border(style.get(), GTK_STATE_FLAG_NORMAL, &border);
  const auto rest = [&](int own) { return std::to_string(std::max(0, own - around)) + "px"; };
  const std::string rule =
      "entry, entry:focus { border: none; box-shadow: none; outline-style: none; background: transparent;"
      " padding-left: " +
      rest(padding.left + border.left) + "; padding-right: " + rest(padding.right + border.right) + "; }";
  AddRule(gtk_widget_get_style_context(box.m_widget), rule);
}

void ApplyUnderline(wxTextCtrl& box) {
  if (!GTK_IS_ENTRY(box.m_widget)) return;
  PangoAttrList* attributes = pango_attr_list_new();
  if (box.GetFont().GetUnderlined())
    pango_attr_list_insert(attributes, pango_attr_underline_new(PANGO_UNDERLINE_SINGLE));
  gtk_entry_set_attributes(GTK_ENTRY(box.m_widget), attributes);
  pango_attr_list_unref(attributes);
}

void ShowGround(wxTextCtrl& box) {
  AddRule(gtk_widget_get_style_context(box.m_widget),
          "entry { background-image: none; background-color: transparent; }");
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
