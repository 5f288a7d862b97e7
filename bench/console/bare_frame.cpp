// A bare frame of the toolkit: what any program's start costs at least. Prints the time from the start of the
// process (the starter says when that was) to the first idle moment after the frame was painted, and ends.

#include <wx/app.h>
#include <wx/frame.h>
#include <wx/panel.h>

#include "bench/console/StartClock.h"

namespace {

class BareFrame : public wxApp {
 public:
  bool OnInit() override {
    auto* frame = new wxFrame(nullptr, wxID_ANY, "bare", wxDefaultPosition, wxSize(900, 600));
    new wxPanel(frame);
    frame->Show();
    mindloft::bench::ReportWhenReady(*frame);
    return true;
  }
};

}  // namespace

wxIMPLEMENT_APP(BareFrame);
