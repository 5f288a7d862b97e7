#pragma once

#include <wx/bmpbndl.h>

#include <vector>

#include "core/forms/Images.h"

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
  StyleImage = 8,
};

/// The drawings of the explorer's images.
std::vector<WantedImage> ExplorerDrawings();

/// The explorer's images, in the order of ExplorerImage.
std::vector<wxBitmapBundle> ExplorerImages();

}  // namespace mindloft
