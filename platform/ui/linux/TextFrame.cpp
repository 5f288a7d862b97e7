#include "platform/ui/TextFrame.h"

#include <gtk/gtk.h>
#include <wx/colour.h>
#include <wx/dc.h>
#include <wx/window.h>

#include "platform/ui/linux/EntryStyle.h"

namespace mindloft::platform {
namespace {

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
