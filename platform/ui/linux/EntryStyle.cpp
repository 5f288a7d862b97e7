#include "platform/ui/linux/EntryStyle.h"

#include <wx/colour.h>

namespace mindloft::platform {

void AddRule(GtkStyleContext* style, const std::string& rule) {
  const std::unique_ptr<GtkCssProvider, UnrefObject> provider(gtk_css_provider_new());
  gtk_css_provider_load_from_data(provider.get(), rule.c_str(), -1, nullptr);
  gtk_style_context_add_provider(style, GTK_STYLE_PROVIDER(provider.get()),
                                 GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
}

StyleContext EntryStyle(GtkWidget* widget, const wxColour& background) {
  StyleContext style(gtk_style_context_new());
  GtkWidgetPath* path = gtk_widget_path_new();
  gtk_widget_path_append_type(path, GTK_TYPE_ENTRY);
  gtk_widget_path_iter_set_object_name(path, -1, "entry");
  gtk_style_context_set_path(style.get(), path);
  gtk_widget_path_unref(path);
  gtk_style_context_set_screen(style.get(), gtk_widget_get_screen(widget));
  gtk_style_context_set_scale(style.get(), gtk_widget_get_scale_factor(widget));
  if (background.IsOk()) {
    AddRule(style.get(), "entry { background-image: none; background-color: " +
                             background.GetAsString(wxC2S_HTML_SYNTAX).utf8_string() + "; }");
  }
  return style;
}

}  // namespace mindloft::platform
