#include "controls/numbers/SpinArrows.h"

#include "core/ErrorHandling.h"

namespace mindloft {

SpinArrows::SpinArrows(wxWindow* parent, const wxString& name)
    : wxSpinButton(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxSP_VERTICAL | wxSP_ARROW_KEYS,
                   name) {
  // At the end of its range the toolkit's spinner tells of no press on some desktops: it stays in the middle.
  SetRange(-1, 1);
  SetValue(0);
  SetCanFocus(false);
  Bind(wxEVT_SPIN_UP, [this](wxSpinEvent& event) { OnSpin(event, true); });
  Bind(wxEVT_SPIN_DOWN, [this](wxSpinEvent& event) { OnSpin(event, false); });
  const auto mouse = [this](bool down) {
    return [this, down](wxMouseEvent& event) {
      mouseDown_ = down;
      event.Skip();
    };
  };
  Bind(wxEVT_LEFT_DOWN, mouse(true));
  Bind(wxEVT_LEFT_DCLICK, mouse(true));
  Bind(wxEVT_LEFT_UP, mouse(false));
  Bind(wxEVT_MOUSE_CAPTURE_LOST, [this](wxMouseCaptureLostEvent&) { mouseDown_ = false; });
  // A release outside may be told to nobody.
  Bind(wxEVT_MOTION, [this](wxMouseEvent& event) {
    if (!event.LeftIsDown()) mouseDown_ = false;
    event.Skip();
  });
}

void SpinArrows::OnSpin(wxSpinEvent& event, bool up) {
  event.Veto();
  Guarded("SpinArrows", "OnSpin", [&] {
    if (pressed) pressed(up);
  });
}

}  // namespace mindloft
