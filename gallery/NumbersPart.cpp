#include "gallery/NumbersPart.h"

namespace mindloft {

NumbersPart::NumbersPart(wxWindow* parent, Tell tell) : GalleryPart(parent, "NumbersPart", std::move(tell)) {
  Fill();
}

void NumbersPart::Fill() {}

}  // namespace mindloft
