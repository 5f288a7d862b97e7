#pragma once

#include "gallery/GalleryPart.h"

namespace mindloft {

/// The preview of a style, in styles of every kind.
class StylesPart : public GalleryPart {
 public:
  StylesPart(wxWindow* parent, Tell tell);
};

}  // namespace mindloft
