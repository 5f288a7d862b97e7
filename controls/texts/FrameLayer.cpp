#include "controls/texts/FrameLayer.h"

#include <wx/dcclient.h>

#include "core/ErrorHandling.h"

namespace mindloft {

FrameLayer::FrameLayer(wxWindow* parent, const wxString& name, const wxWindow* frame,
                       std::function<FrameLook()> look)
    : frame_(frame ? frame : this), look_(std::move(look)) {
  // All is drawn at each size: an edge that stays behind would be seen twice.
  Create(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
         wxTAB_TRAVERSAL | wxBORDER_NONE | wxFULL_REPAINT_ON_RESIZE, name);
  Bind(wxEVT_PAINT, [this](wxPaintEvent&) { OnPaint(); });
}

void FrameLayer::OnPaint() try {
  wxPaintDC dc(this);
  const FrameLook look = look_();
  if (!look.isThreeD) {
    dc.SetPen(*wxTRANSPARENT_PEN);
    dc.SetBrush(look.ground);
    dc.DrawRectangle(GetClientRect());
    return;
  }
  const wxPoint offset = this == frame_ ? wxPoint() : -GetPosition();
  platform::DrawTextFrame(*this, dc, wxRect(offset, frame_->GetSize()), look.state, look.background);
} catch (...) {
  ReportOnly("FrameLayer", "OnPaint");
}

}  // namespace mindloft
