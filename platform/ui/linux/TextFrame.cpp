#include "platform/ui/TextFrame.h"

#include <gtk/gtk.h>
#include <wx/colour.h>
#include <wx/dc.h>
#include <wx/window.h>

#include <memory>
#include <string>

namespace mindloft::platform {
namespace {

struct Unref {
  void operator()(gpointer object) const { g_object_unref(object); }
};

/// The theme's style of a text box, with another background if one is given.
std::unique_ptr<GtkStyleContext, Unref> EntryStyle(GtkWidget* widget, const wxColour& background) {
  std::unique_ptr<GtkStyleContext, Unref> style(gtk_style_context_new());
  GtkWidgetPath* path = gtk_widget_path_new();
  gtk_widget_path_append_type(path, GTK_TYPE_ENTRY);
  gtk_widget_path_iter_set_object_name(path, -1, "entry");
  gtk_style_context_set_path(style.get(), path);
  gtk_widget_path_unref(path);
  gtk_style_context_set_screen(style.get(), gtk_widget_get_screen(widget));
  gtk_style_context_set_scale(style.get(), gtk_widget_get_scale_factor(widget));
  if (background.IsOk()) {
    const std::string rule = "entry { background-image: none; background-color: " +
                             background.GetAsString(wxC2S_HTML_SYNTAX).utf8_string() + "; }";
    std::unique_ptr<GtkCssProvider, Unref> provider(gtk_css_provider_new());
    gtk_css_provider_load_from_data(provider.get(), rule.c_str(), -1, nullptr);
    gtk_style_context_add_provider(style.get(), GTK_STYLE_PROVIDER(provider.get()),
                                   GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
  }
  return style;
}

GtkStateFlags FlagsOf(TextFrameState state, const wxWindow& window) {
  int flags = GTK_STATE_FLAG_NORMAL;
  if (!state.enabled)
    flags = GTK_STATE_FLAG_INSENSITIVE;
  else if (state.focused)
    flags = GTK_STATE_FLAG_FOCUSED;
  flags |=
      window.GetLayoutDirection() == wxLayout_RightToLeft ? GTK_STATE_FLAG_DIR_RTL : GTK_STATE_FLAG_DIR_LTR;
  return static_cast<GtkStateFlags>(flags);
}

}  // namespace

void DrawTextFrame(wxWindow& window, wxDC& dc, const wxRect& rect, TextFrameState state,
                   const wxColour& background) {
  auto* cairo = static_cast<cairo_t*>(dc.GetHandle());
  if (!cairo) return;
  const auto style = EntryStyle(window.m_widget, background);
  gtk_style_context_set_state(style.get(), FlagsOf(state, window));
  gtk_render_background(style.get(), cairo, rect.x, rect.y, rect.width, rect.height);
  gtk_render_frame(style.get(), cairo, rect.x, rect.y, rect.width, rect.height);
}

}  // namespace mindloft::platform
