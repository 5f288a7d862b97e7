#include "controls/print/PagePicture.h"

#include <wx/dcclient.h>
#include <wx/settings.h>

#include <algorithm>

#include "core/ErrorHandling.h"

namespace mindloft {
namespace {

// Pixels at 96 dpi.
constexpr int kWidth = 120;
constexpr int kHeight = 140;
constexpr int kShadow = 3;
constexpr int kLine = 5;  // from one line of the text to the next

wxColour SystemColour(wxSystemColour index) {
  return wxSystemSettings::GetColour(index);
}

}  // namespace

PagePicture::PagePicture(wxWindow* parent, const wxString& name) {
  Create(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0, name);
}

bool PagePicture::Create(wxWindow* parent, wxWindowID id, const wxPoint& position, const wxSize& size,
                         long style, const wxString& name) {
  const long used = (style & ~wxBORDER_MASK) | wxBORDER_NONE;
  if (!wxControl::Create(parent, id, position, size, used, wxDefaultValidator, name)) return false;
  Bind(wxEVT_PAINT, &PagePicture::OnPaint, this);
  Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
    event.Skip();
    PlaceParts();
  });
  Bind(wxEVT_SYS_COLOUR_CHANGED, [this](wxSysColourChangedEvent& event) {
    event.Skip();
    Refresh();
  });
  SetInitialSize(size);
  return true;
}

const PropertyTable<PagePicture>& PagePicture::Properties() {
  static const PropertyTable<PagePicture> none{};
  return none;
}

wxSize PagePicture::DoGetBestClientSize() const {
  return FromDIP(wxSize(kWidth, kHeight));
}

void PagePicture::ShowPage(const PageSettings& settings) {
  settings_ = settings;
  PlaceParts();
}

void PagePicture::PlaceParts() {
  places_ = {};
  Refresh();
  if (settings_.paperWidth <= 0 || settings_.paperHeight <= 0) return;
  const wxSize room = GetClientSize() - FromDIP(wxSize(kShadow, kShadow));
  const double scale = std::min(static_cast<double>(room.x) / settings_.paperWidth,
                                static_cast<double>(room.y) / settings_.paperHeight);
  if (scale <= 0) return;
  const auto pixels = [scale](int tenths) { return wxRound(tenths * scale); };
  const wxSize page(std::max(pixels(settings_.paperWidth), 1), std::max(pixels(settings_.paperHeight), 1));
  places_.page = wxRect(wxPoint((room.x - page.x) / 2, (room.y - page.y) / 2), page);
  const wxRect area = PrintedArea(settings_);
  if (area.IsEmpty()) return;
  const wxPoint start = places_.page.GetPosition();
  places_.printed =
      wxRect(start + wxPoint(pixels(area.x), pixels(area.y)), wxSize(pixels(area.width), pixels(area.height)))
          .Intersect(places_.page);
}

void PagePicture::OnPaint(wxPaintEvent&) try {
  wxPaintDC dc(this);
  dc.SetLayoutDirection(wxLayout_LeftToRight);
  if (places_.page.IsEmpty()) return;
  DrawPage(dc);
  if (!places_.printed.IsEmpty()) DrawText(dc);
} catch (...) {
  ReportOnly("PagePicture", "OnPaint");
}

void PagePicture::DrawPage(wxDC& dc) const {
  wxRect shadow = places_.page;
  shadow.Offset(FromDIP(wxPoint(kShadow, kShadow)));
  dc.SetPen(*wxTRANSPARENT_PEN);
  dc.SetBrush(wxBrush(SystemColour(wxSYS_COLOUR_BTNSHADOW)));
  dc.DrawRectangle(shadow);
  dc.SetPen(wxPen(SystemColour(wxSYS_COLOUR_WINDOWTEXT), std::max(FromDIP(1), 1)));
  dc.SetBrush(wxBrush(SystemColour(wxSYS_COLOUR_WINDOW)));
  dc.DrawRectangle(places_.page);
}

void PagePicture::DrawText(wxDC& dc) const {
  const wxRect& area = places_.printed;
  const int thick = std::max(FromDIP(1), 1);
  // Lines of a text, the last one of them short, inside the margins' edge.
  dc.SetPen(*wxTRANSPARENT_PEN);
  dc.SetBrush(wxBrush(SystemColour(wxSYS_COLOUR_GRAYTEXT)));
  const wxRect text = wxRect(area).Deflate(2 * thick);
  const int step = std::max(FromDIP(kLine), 2);
  for (int top = text.y; !text.IsEmpty() && top + thick <= text.GetBottom(); top += step) {
    const bool isLast = top + step + thick > text.GetBottom();
    dc.DrawRectangle(text.x, top, isLast ? text.width * 3 / 5 : text.width, thick);
  }
  dc.SetPen(wxPen(SystemColour(wxSYS_COLOUR_HIGHLIGHT), thick, wxPENSTYLE_SHORT_DASH));
  dc.SetBrush(*wxTRANSPARENT_BRUSH);
  dc.DrawRectangle(area);
}

}  // namespace mindloft
