#include "gallery/ButtonsPart.h"

namespace mindloft {

ButtonsPart::ButtonsPart(wxWindow* parent, Tell tell) : GalleryPart(parent, "ButtonsPart", std::move(tell)) {
  Fill();
}

void ButtonsPart::Fill() {}

}  // namespace mindloft
