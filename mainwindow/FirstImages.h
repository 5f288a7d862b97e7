#pragma once

#include <vector>

#include "core/forms/Images.h"

namespace mindloft {

/// The drawings that the main window shows first.
std::vector<WantedImage> FirstImages();

}  // namespace mindloft
