#include "controls/rows/DirectoryImages.h"

namespace mindloft {

std::vector<WantedImage> ExplorerDrawings() {
  std::vector<WantedImage> images;
  for (const char* name :
       {"server", "folder", "domain", "user", "role", "group", "domain-disabled", "user-disabled", "style"})
    images.push_back({name});
  return images;
}

std::vector<wxBitmapBundle> ExplorerImages() {
  std::vector<wxBitmapBundle> images;
  for (const auto& [name, size] : ExplorerDrawings()) images.push_back(LoadImage(name, size));
  return images;
}

}  // namespace mindloft
