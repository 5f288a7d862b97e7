#include "platform/ui/MeasuringDC.h"

#include <gtk/gtk.h>
#include <wx/dcgraph.h>
#include <wx/display.h>
#include <wx/graphics.h>
#include <wx/window.h>

namespace mindloft::platform {
namespace {

/// A context for a surface like the window's, which decides how glyphs are rounded.
wxGraphicsContext* ContextOf(wxWindow& window) {
  GtkWidget* widget = window.m_wxwindow ? window.m_wxwindow : window.GetHandle();
  GdkWindow* shown = gtk_widget_get_window(widget);
  if (!shown) return wxGraphicsContext::Create();
  cairo_surface_t* alike = gdk_window_create_similar_surface(shown, CAIRO_CONTENT_COLOR, 1, 1);
  cairo_t* cairo = cairo_create(alike);
  wxGraphicsContext* context = wxGraphicsContext::CreateFromNative(cairo);
  cairo_destroy(cairo);
  cairo_surface_destroy(alike);
  context->SetContentScaleFactor(window.GetContentScaleFactor());
  return context;
}

class MeasuringImpl : public wxGCDCImpl {
 public:
  MeasuringImpl(wxDC* owner, wxWindow& window)
      : wxGCDCImpl(owner, ContextOf(window)), resolution_(wxDisplay(&window).GetPPI()) {
    m_window = &window;
  }

  /// The toolkit asks the display server each time where the window is, several times for each paragraph.
  wxSize GetPPI() const override { return resolution_; }

 private:
  wxSize resolution_;
};

class MeasuringDC : public wxDC {
 public:
  explicit MeasuringDC(wxWindow& window) : wxDC(new MeasuringImpl(this, window)) {}
};

}  // namespace

std::unique_ptr<wxDC> MakeMeasuringDC(wxWindow& window) {
  return std::make_unique<MeasuringDC>(window);
}

}  // namespace mindloft::platform
