#include "mainwindow/FirstImages.h"

#include "controls/rows/DirectoryImages.h"
#include "mainwindow/MainToolBar.h"

namespace mindloft {

std::vector<WantedImage> FirstImages() {
  auto images = WindowIconImages();
  const auto add = [&](const std::vector<WantedImage>& more) {
    images.insert(images.end(), more.begin(), more.end());
  };
  add(ExplorerDrawings());
  add(MainToolBar::Images());
  images.push_back({"find"});  // of the search box
  return images;
}

}  // namespace mindloft
