#pragma once

#include <wx/frame.h>

namespace mindloft {

/// The one page on which every control of the console stands in every state. A line on it tells the last
/// event that one of them raised.
class frmControls : public wxFrame {
 public:
  frmControls();
};

}  // namespace mindloft
