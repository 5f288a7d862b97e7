#include <gtest/gtest.h>
#include <gtk/gtk.h>
#include <pango/pangocairo.h>

#include <memory>

#include "platform/ui/Toolkit.h"
#include "platform/ui/linux/EntryStyle.h"

namespace mindloft::test {
namespace {

template <typename Object>
using Owned = std::unique_ptr<Object, platform::UnrefObject>;

Owned<PangoFont> FontOf(PangoContext* context) {
  PangoFontDescription* description = pango_font_description_from_string("Sans 10");
  Owned<PangoFont> font(pango_context_load_font(context, description));
  pango_font_description_free(description);
  return font;
}

/// What keeps the glyphs that were drawn with the font.
const cairo_scaled_font_t* GlyphsOf(PangoFont* font) {
  return pango_cairo_font_get_scaled_font(PANGO_CAIRO_FONT(font));
}

TEST(ToolkitTest, MendedItDrawsEachGlyphOnceAndHidesTextsBehindBullets) {
  platform::MendToolkit();
  platform::MendToolkit();
  const Owned<PangoContext> ofLabels(gdk_pango_context_get_for_screen(gdk_screen_get_default()));
  cairo_surface_t* surface =
      gdk_window_create_similar_surface(gdk_get_default_root_window(), CAIRO_CONTENT_COLOR, 1, 1);
  cairo_t* drawing = cairo_create(surface);
  const Owned<PangoContext> ofDrawings(pango_cairo_create_context(drawing));
  const auto fontOfLabels = FontOf(ofLabels.get()), fontOfDrawings = FontOf(ofDrawings.get());
  EXPECT_EQ(GlyphsOf(fontOfLabels.get()), GlyphsOf(fontOfDrawings.get()));
  cairo_destroy(drawing);
  cairo_surface_destroy(surface);

  GtkWidget* entry = GTK_WIDGET(g_object_ref_sink(gtk_entry_new()));
  guint hiding = 0;
  gtk_widget_style_get(entry, "invisible-char", &hiding, nullptr);
  EXPECT_EQ(hiding, 0x2022u);
  gtk_widget_destroy(entry);
  g_object_unref(entry);
}

}  // namespace
}  // namespace mindloft::test
