#include "controls/buttons/UserLine.h"

#include <wx/dcbuffer.h>

#include <algorithm>

#include "controls/buttons/ButtonEdges.h"

namespace mindloft {
namespace {

constexpr int kLongEnough = 40;  // pixels at 96 dpi, where the form gives no width

}  // namespace

wxIMPLEMENT_DYNAMIC_CLASS(UserLine, wxControl);

UserLine::UserLine() = default;

UserLine::UserLine(wxWindow* parent, const wxString& name) {
  Create(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0, name);
}

bool UserLine::Create(wxWindow* parent, wxWindowID id, const wxPoint& position, const wxSize& size,
                      long style, const wxString& name) {
  const long used = (style & ~wxBORDER_MASK) | wxBORDER_NONE;
  SetBackgroundStyle(wxBG_STYLE_PAINT);
  if (!wxControl::Create(parent, id, position, size, used, wxDefaultValidator, name)) return false;
  Bind(wxEVT_PAINT, &UserLine::OnPaint, this);
  Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
    UserControl_Resize();
    event.Skip();
  });
  const auto redraw = [this](wxEvent& event) {
    Refresh();
    event.Skip();
  };
  Bind(wxEVT_SYS_COLOUR_CHANGED, redraw);
  SetInitialSize(size);
  UserControl_Resize();
  return true;
}

const PropertyTable<UserLine>& UserLine::Properties() {
  static const PropertyTable<UserLine> none{};
  return none;
}

int UserLine::Thickness() const {
  return std::max(1, FromDIP(1));
}

wxSize UserLine::DoGetBestClientSize() const {
  return {FromDIP(kLongEnough), 2 * Thickness()};
}

void UserLine::UserControl_Resize() {
  const wxSize size = GetClientSize();
  const int top = std::max(0, (size.y - 2 * Thickness()) / 2);
  line1_.place = {0, top, size.x, Thickness()};
  line2_.place = {0, top + Thickness(), size.x, Thickness()};
  Refresh();
}

void UserLine::OnPaint(wxPaintEvent&) {
  wxAutoBufferedPaintDC dc(this);
  dc.SetBackground(wxBrush(GetParent()->GetBackgroundColour()));
  dc.Clear();
  for (const LineShape* line : {&line1_, &line2_}) FillRect(dc, line->place, line->colour.Resolve());
}

}  // namespace mindloft
