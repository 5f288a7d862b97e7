#pragma once

#include <wx/string.h>

class wxFrame;
class wxStatusBar;

namespace mindloft::platform {

/// A status bar for the frame, which owns it. A new text is painted with the window's next picture, not at
/// once.
wxStatusBar* NewStatusBar(wxFrame& frame, const wxString& name);

}  // namespace mindloft::platform
