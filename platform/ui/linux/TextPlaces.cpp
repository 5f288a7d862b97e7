#include "platform/ui/TextPlaces.h"

#include <wx/graphics.h>

#include "platform/ui/linux/TextParts.h"

namespace mindloft::platform {

std::vector<int> CaretOffsets(const wxDC& dc, const wxString& text) {
  const wxScopedCharBuffer utf8 = text.utf8_str();
  auto* context = static_cast<cairo_t*>(dc.GetGraphicsContext()->GetNativeContext());
  const LayoutPointer layout = MakeLayout(context, dc.GetFont(), utf8);
  int known = 0;
  const PangoLogAttr* characters = pango_layout_get_log_attrs_readonly(layout.get(), &known);
  std::vector<int> offsets;
  const char* byte = utf8.data();
  for (int i = 0; i < known; ++i) {
    PangoRectangle caret;
    pango_layout_get_cursor_pos(layout.get(), static_cast<int>(byte - utf8.data()), &caret, nullptr);
    const bool canStand = offsets.empty() || characters[i].is_cursor_position;
    offsets.push_back(canStand ? PANGO_PIXELS(caret.x) : offsets.back());
    if (i + 1 < known) byte = g_utf8_next_char(byte);
  }
  offsets.resize(text.length() + 1, offsets.empty() ? 0 : offsets.back());
  return offsets;
}

}  // namespace mindloft::platform
