#include "platform/ui/StatusBar.h"

#include <wx/frame.h>
#include <wx/statusbr.h>

namespace mindloft::platform {
namespace {

/// The toolkit's own paints at once, with everything else that waits to be painted in the window, and so
/// draws controls that have not been laid out yet.
class PatientStatusBar : public wxStatusBar {
 public:
  using wxStatusBar::wxStatusBar;

 protected:
  void DoUpdateStatusText(int field) override {
    wxRect place;
    if (GetFieldRect(field, place)) RefreshRect(place);
  }
};

}  // namespace

wxStatusBar* NewStatusBar(wxFrame& frame, const wxString& name) {
  return new PatientStatusBar(&frame, wxID_ANY, wxSTB_DEFAULT_STYLE, name);
}

}  // namespace mindloft::platform
