#pragma once

#include "gallery/GalleryPart.h"

namespace mindloft {

/// The page setup's panel, with the printers of this computer.
class PageSetupPart : public GalleryPart {
 public:
  PageSetupPart(wxWindow* parent, Tell tell);
};

}  // namespace mindloft
