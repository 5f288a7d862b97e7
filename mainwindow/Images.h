#pragma once

#include <wx/bmpbndl.h>
#include <wx/iconbndl.h>
#include <wx/string.h>

#include <vector>

namespace mindloft {

/// Places in the explorer's list of images. 2 and 6 are the two images of a knowledge domain.
enum ExplorerImage : int {
  RootImage = 0,
  FolderImage = 1,
  DomainImage = 2,
  UserImage = 3,
  RoleImage = 4,
  GroupImage = 5,
  DisabledDomainImage = 6,
  DisabledUserImage = 7,
};

/// The program's own drawing of that name ("user" is images/user.svg), `size` pixels wide and high at 96 dpi;
/// not ok when there is none. Nothing is drawn before a bitmap is asked of it.
wxBitmapBundle LoadImage(const wxString& name, int size = 16);

/// The explorer's images, in the order of ExplorerImage.
std::vector<wxBitmapBundle> ExplorerImages();

/// The program's icon for title bars and task lists.
wxIconBundle WindowIcons();

}  // namespace mindloft
