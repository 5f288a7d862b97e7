#pragma once

#include <wx/spinbutt.h>

#include <functional>

namespace mindloft {

/// The two arrows of a spinner beside a box. They hold no value: each press, also each repetition while the
/// mouse button is held, tells its direction, whatever the range of what it moves. They never take the focus,
/// so that the box keeps it.
class SpinArrows : public wxSpinButton {
 public:
  SpinArrows(wxWindow* parent, const wxString& name);

  /// Whether the mouse button is down on an arrow.
  bool IsMouseDown() const { return mouseDown_; }
  bool AcceptsFocus() const override { return false; }

  std::function<void(bool up)> pressed;

 private:
  void OnSpin(wxSpinEvent& event, bool up);

  bool mouseDown_ = false;
};

}  // namespace mindloft
