#include "platform/ui/linux/RichTextContexts.h"

#include <gtk/gtk.h>
#include <wx/dcclient.h>
#include <wx/dcgraph.h>
#include <wx/display.h>
#include <wx/graphics.h>
#include <wx/window.h>

#include "platform/ui/linux/TextParts.h"

namespace mindloft::platform {
namespace {

/// A context for a surface like the window's, which decides how glyphs are rounded.
wxGraphicsContext* ContextOf(wxWindow& window) {
  GtkWidget* widget = window.m_wxwindow ? window.m_wxwindow : window.GetHandle();
  GdkWindow* shown = gtk_widget_get_window(widget);
  if (!shown) return wxGraphicsContext::Create();
  cairo_surface_t* alike = gdk_window_create_similar_surface(shown, CAIRO_CONTENT_COLOR, 1, 1);
  wxGraphicsContext* context = ContextOn(alike);
  context->SetContentScaleFactor(window.GetContentScaleFactor());
  return context;
}

class RichTextContext : public wxGCDCImpl {
 public:
  RichTextContext(wxDC* owner, wxWindow& window)
      : wxGCDCImpl(owner, ContextOf(window)), resolution_(wxDisplay(&window).GetPPI()) {
    m_window = &window;
    SetFont(window.GetFont());
  }

  /// The toolkit asks the display server each time where the window is, several times for each paragraph.
  wxSize GetPPI() const override { return resolution_; }
  bool DoGetPartialTextExtents(const wxString& text, wxArrayInt& widths) const override {
    widths = MeasureParts(static_cast<cairo_t*>(m_graphicContext->GetNativeContext()), m_font, text);
    return true;
  }
  void DoGetSize(int* width, int* height) const override { m_window->GetClientSize(width, height); }

 private:
  wxSize resolution_;
};

/// Gives rich-text boxes contexts that measure rightly: they lay out their lines, and find the places of the
/// mouse and the caret, by contexts of their client area, with which they draw nothing.
class Contexts : public wxNativeDCFactory {
 public:
  using wxNativeDCFactory::CreateClientDC;
  wxDCImpl* CreateClientDC(wxClientDC* owner, wxWindow* window) override {
    // By name, for those who have no rich-text box need not link to its library.
    const wxClassInfo* richText = wxClassInfo::FindClass("wxRichTextCtrl");
    if (!window || !richText || !window->IsKindOf(richText))
      return wxNativeDCFactory::CreateClientDC(owner, window);
    return new RichTextContext(owner, *window);
  }
};

}  // namespace

void MeasureRichText() {
  static bool isSet = false;
  if (!isSet) wxDCFactory::Set(new Contexts);
  isSet = true;
}

}  // namespace mindloft::platform
