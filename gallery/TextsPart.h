#pragma once

#include "gallery/GalleryPart.h"

namespace mindloft {

/// The text controls in every state.
class TextsPart : public GalleryPart {
 public:
  TextsPart(wxWindow* parent, Tell tell);

 private:
  void Fill();
};

}  // namespace mindloft
