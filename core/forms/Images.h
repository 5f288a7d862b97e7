#pragma once

#include <wx/bmpbndl.h>
#include <wx/iconbndl.h>
#include <wx/string.h>

namespace mindloft {

/// The program's own drawing of that name ("user" is images/user.svg), `size` pixels wide and high at 96 dpi;
/// not ok when there is none. Nothing is drawn before a bitmap is asked of it.
wxBitmapBundle LoadImage(const wxString& name, int size = 16);

/// The program's icon for title bars and task lists.
wxIconBundle WindowIcons();

}  // namespace mindloft
