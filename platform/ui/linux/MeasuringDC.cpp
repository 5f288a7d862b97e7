#include "platform/ui/MeasuringDC.h"

#include <wx/dc.h>
#include <wx/dcgraph.h>
#include <wx/graphics.h>

#include "platform/ui/linux/TextParts.h"

namespace mindloft::platform {
namespace {

wxGraphicsContext* ContextOf(const wxDC& page) {
  auto* drawn = static_cast<cairo_t*>(page.GetImpl()->GetCairoContext());
  if (!drawn) return wxGraphicsContext::Create();
  cairo_surface_t* alike =
      cairo_surface_create_similar(cairo_get_target(drawn), CAIRO_CONTENT_COLOR_ALPHA, 1, 1);
  return ContextOn(alike);
}

/// Leaves to the page what that tells rightly, and sets it as itself.
class PageImpl : public wxGCDCImpl {
 public:
  PageImpl(wxDC* owner, wxDC& page) : wxGCDCImpl(owner, ContextOf(page)), page_(page) {}

  void SetFont(const wxFont& font) override {
    wxGCDCImpl::SetFont(font);
    page_.SetFont(font);
  }
  void SetUserScale(double x, double y) override {
    wxGCDCImpl::SetUserScale(x, y);
    page_.SetUserScale(x, y);
  }
  wxSize GetPPI() const override { return page_.GetPPI(); }
  void DoGetSize(int* width, int* height) const override { page_.GetSize(width, height); }
  wxCoord GetCharHeight() const override { return page_.GetCharHeight(); }
  wxCoord GetCharWidth() const override { return page_.GetCharWidth(); }
  void DoGetTextExtent(const wxString& text, wxCoord* width, wxCoord* height, wxCoord* descent,
                       wxCoord* leading, const wxFont* font) const override {
    page_.GetTextExtent(text, width, height, descent, leading, font);
  }
  bool DoGetPartialTextExtents(const wxString& text, wxArrayInt& widths) const override {
    widths = MeasureParts(static_cast<cairo_t*>(m_graphicContext->GetNativeContext()), m_font, text);
    if (widths.empty() || widths.back() == 0) return true;
    // Printers have a measure of their own for the size of letters.
    const double share = static_cast<double>(page_.GetTextExtent(text).x) / widths.back();
    for (int& width : widths) width = wxRound(width * share);
    return true;
  }

 private:
  wxDC& page_;
};

class PageDC : public wxDC {
 public:
  explicit PageDC(wxDC& page) : wxDC(new PageImpl(this, page)) {}
};

}  // namespace

std::unique_ptr<wxDC> MakeMeasuringDC(wxDC& page) {
  return std::make_unique<PageDC>(page);
}

}  // namespace mindloft::platform
