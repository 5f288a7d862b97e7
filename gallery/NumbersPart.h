#pragma once

#include "gallery/GalleryPart.h"

namespace mindloft {

/// The numeric controls in every state.
class NumbersPart : public GalleryPart {
 public:
  NumbersPart(wxWindow* parent, Tell tell);

 private:
  void Fill();
};

}  // namespace mindloft
