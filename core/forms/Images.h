#pragma once

#include <wx/bmpbndl.h>
#include <wx/iconbndl.h>
#include <wx/string.h>

#include <vector>

namespace mindloft {

/// The program's own drawing of that name ("user" is images/user.svg), `size` pixels wide and high at 96 dpi;
/// not ok when there is none. Nothing is drawn before a bitmap is asked of it.
wxBitmapBundle LoadImage(const wxString& name, int size = 16);

/// The program's icon for title bars and task lists.
wxIconBundle WindowIcons();

/// A drawing as it is asked of LoadImage.
struct WantedImage {
  wxString name;
  int size = 16;
};

/// The drawings that WindowIcons is made of.
std::vector<WantedImage> WindowIconImages();

/// Begins to draw what the first window shows, beside the caller, for a screen of that scale (1 is 96 dpi).
/// LoadImage then gives the finished ones; what is not finished, or wanted in another size, is drawn when it
/// is needed.
void BeginDrawingImages(std::vector<WantedImage> images, double scale);

}  // namespace mindloft
