#pragma once

#include "gallery/GalleryPart.h"

namespace mindloft {

/// The button controls in every state.
class ButtonsPart : public GalleryPart {
 public:
  ButtonsPart(wxWindow* parent, Tell tell);

 private:
  void Fill();
};

}  // namespace mindloft
