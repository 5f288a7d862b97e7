#pragma once

#include <wx/panel.h>

#include <functional>

#include "platform/ui/TextFrame.h"

namespace mindloft {

/// How the layers around an editing box are drawn at the moment.
struct FrameLook {
  bool isThreeD = true;  ///< the frame of the desktop's own text box; else only the ground
  platform::TextFrameState state;
  wxColour background;  ///< of the frame; invalid: the desktop's own
  wxColour ground;      ///< where there is no frame
};

/// A layer of a text control: it draws its part of the frame whose outer edge is `frame`'s.
class FrameLayer : public wxPanel {
 public:
  /// `look` is asked at each drawing. `frame` is the layer that the frame surrounds; null: this one.
  FrameLayer(wxWindow* parent, const wxString& name, const wxWindow* frame, std::function<FrameLook()> look);

 private:
  void OnPaint();

  const wxWindow* frame_;
  std::function<FrameLook()> look_;
};

}  // namespace mindloft
