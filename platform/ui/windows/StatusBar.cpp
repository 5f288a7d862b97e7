#include "platform/ui/StatusBar.h"

#include <wx/frame.h>
#include <wx/statusbr.h>

namespace mindloft::platform {

wxStatusBar* NewStatusBar(wxFrame& frame, const wxString& name) {
  return new wxStatusBar(&frame, wxID_ANY, wxSTB_DEFAULT_STYLE, name);
}

}  // namespace mindloft::platform
