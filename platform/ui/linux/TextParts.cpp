#include "platform/ui/linux/TextParts.h"

#include <wx/fontutil.h>

#include <algorithm>
#include <cstdint>
#include <vector>

namespace mindloft::platform {
namespace {

/// What is drawn as one.
struct Cluster {
  int start;  ///< byte of the text
  int width;  ///< in Pango's units
};

/// In the order in which they are read.
std::vector<Cluster> ClustersOf(PangoLayout& layout) {
  std::vector<Cluster> clusters;
  const std::unique_ptr<PangoLayoutIter, Unreference> place(pango_layout_get_iter(&layout));
  do {
    PangoRectangle extents;
    pango_layout_iter_get_cluster_extents(place.get(), nullptr, &extents);
    clusters.push_back({pango_layout_iter_get_index(place.get()), extents.width});
  } while (pango_layout_iter_next_cluster(place.get()));
  std::stable_sort(clusters.begin(), clusters.end(),
                   [](const Cluster& one, const Cluster& other) { return one.start < other.start; });
  return clusters;
}

}  // namespace

wxGraphicsContext* ContextOn(cairo_surface_t* surface) {
  cairo_t* cairo = cairo_create(surface);
  wxGraphicsContext* context = wxGraphicsContext::CreateFromNative(cairo);
  cairo_destroy(cairo);
  cairo_surface_destroy(surface);
  return context;
}

LayoutPointer MakeLayout(cairo_t* context, const wxFont& font, const wxScopedCharBuffer& utf8) {
  LayoutPointer layout(pango_cairo_create_layout(context));
  pango_layout_set_font_description(layout.get(), font.GetNativeFontInfo()->description);
  pango_layout_set_text(layout.get(), utf8.data(), static_cast<int>(utf8.length()));
  return layout;
}

wxArrayInt MeasureParts(cairo_t* context, const wxFont& font, const wxString& text) {
  wxArrayInt ends;
  if (text.empty()) return ends;
  ends.reserve(text.length());
  const wxScopedCharBuffer utf8 = text.utf8_str();
  const LayoutPointer layout = MakeLayout(context, font, utf8);
  const std::vector<Cluster> clusters = ClustersOf(*layout);
  int known = 0;
  const PangoLogAttr* characters = pango_layout_get_log_attrs_readonly(layout.get(), &known);
  const char* byte = utf8.data();
  const auto index = [&] { return static_cast<int>(byte - utf8.data()); };
  std::int64_t before = 0;
  for (std::size_t i = 0; i < clusters.size(); ++i) {
    const int end = i + 1 < clusters.size() ? clusters[i + 1].start : static_cast<int>(utf8.length());
    // The caret can stand inside a ligature, but not between a letter and its marks.
    const std::size_t first = ends.size();
    int places = 0;
    for (; index() < end; byte = g_utf8_next_char(byte)) {
      const int character = static_cast<int>(ends.size());
      if (ends.size() == first || (character < known && characters[character].is_cursor_position)) ++places;
      ends.push_back(places);
    }
    for (std::size_t each = first; each < ends.size(); ++each)
      ends[each] = PANGO_PIXELS(before + static_cast<std::int64_t>(clusters[i].width) * ends[each] / places);
    before += clusters[i].width;
  }
  ends.resize(text.length(), static_cast<int>(PANGO_PIXELS(before)));
  return ends;
}

}  // namespace mindloft::platform
