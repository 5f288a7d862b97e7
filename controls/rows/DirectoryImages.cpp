#include "controls/rows/DirectoryImages.h"

namespace mindloft {

std::vector<wxBitmapBundle> ExplorerImages() {
  std::vector<wxBitmapBundle> images;
  for (const char* name :
       {"server", "folder", "domain", "user", "role", "group", "domain-disabled", "user-disabled", "style"})
    images.push_back(LoadImage(name));
  return images;
}

}  // namespace mindloft
