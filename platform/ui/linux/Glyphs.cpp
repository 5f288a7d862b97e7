#include "platform/ui/linux/Glyphs.h"

#include <gtk/gtk.h>

#include <memory>

namespace mindloft::platform {

void ShareGlyphs() {
  // Reads the desktop's settings, unless that was done.
  gtk_settings_get_default();
  auto* screen = gdk_screen_get_default();
  const std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)> surface(
      gdk_window_create_similar_surface(gdk_screen_get_root_window(screen), CAIRO_CONTENT_COLOR, 1, 1),
      &cairo_surface_destroy);
  const std::unique_ptr<cairo_font_options_t, decltype(&cairo_font_options_destroy)> options(
      cairo_font_options_create(), &cairo_font_options_destroy);
  cairo_surface_get_font_options(surface.get(), options.get());
  if (const auto* ofDesktop = gdk_screen_get_font_options(screen))
    cairo_font_options_merge(options.get(), ofDesktop);
  // The two are drawn alike, but kept apart; the surfaces know only one.
  if (cairo_font_options_get_hint_style(options.get()) == CAIRO_HINT_STYLE_MEDIUM)
    cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_FULL);
  gdk_screen_set_font_options(screen, options.get());
}

}  // namespace mindloft::platform
