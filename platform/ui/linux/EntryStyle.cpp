#include "platform/ui/linux/EntryStyle.h"

#include <wx/colour.h>

namespace mindloft::platform {
namespace {

using StyleProvider = std::unique_ptr<GtkStyleProvider, UnrefObject>;

StyleProvider ProviderOf(const std::string& rule) {
  GtkCssProvider* provider = gtk_css_provider_new();
  gtk_css_provider_load_from_data(provider, rule.c_str(), -1, nullptr);
  return StyleProvider(GTK_STYLE_PROVIDER(provider));
}

}  // namespace

void AddRule(GtkStyleContext* style, const std::string& rule) {
  gtk_style_context_add_provider(style, ProviderOf(rule).get(), GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
}

void PreferBullets() {
  static bool preferred = false;
  if (preferred) return;
  preferred = true;
  // U+2022; below the theme, which may have a choice of its own.
  gtk_style_context_add_provider_for_screen(gdk_screen_get_default(),
                                            ProviderOf("entry { -GtkEntry-invisible-char: 8226; }").get(),
                                            GTK_STYLE_PROVIDER_PRIORITY_FALLBACK);
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
