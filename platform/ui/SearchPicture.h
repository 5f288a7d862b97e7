#pragma once

#include <wx/bmpbndl.h>

class wxSearchCtrl;

namespace mindloft::platform {

/// Gives a search box this picture where the desktop's own would come from its icon theme: to look through
/// that and to load the library that draws it is a tenth of the console's start. Where the screen is scaled
/// the desktop's own stays, which it alone draws sharply there.
void SetSearchPicture(wxSearchCtrl& box, const wxBitmapBundle& picture);

}  // namespace mindloft::platform
