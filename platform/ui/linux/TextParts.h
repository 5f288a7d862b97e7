#pragma once

#include <pango/pangocairo.h>
#include <wx/dynarray.h>
#include <wx/font.h>
#include <wx/graphics.h>
#include <wx/string.h>

#include <memory>

namespace mindloft::platform {

struct Unreference {
  void operator()(PangoLayout* layout) const { g_object_unref(layout); }
  void operator()(PangoLayoutIter* place) const { pango_layout_iter_free(place); }
};
using LayoutPointer = std::unique_ptr<PangoLayout, Unreference>;

/// A context that draws on the surface, and keeps it in the caller's place.
wxGraphicsContext* ContextOn(cairo_surface_t* surface);

/// The text as the context draws it.
LayoutPointer MakeLayout(cairo_t* context, const wxFont& font, const wxScopedCharBuffer& utf8);

/// For each character of the text, how wide the text is up to its end, in the order in which it is read, as
/// the context would draw it. The toolkit adds up what stands on the paper from left to right, and counts
/// what is drawn as one, such as a ligature, as one character.
wxArrayInt MeasureParts(cairo_t* context, const wxFont& font, const wxString& text);

}  // namespace mindloft::platform
