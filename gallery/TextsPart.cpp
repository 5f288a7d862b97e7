#include "gallery/TextsPart.h"

namespace mindloft {

TextsPart::TextsPart(wxWindow* parent, Tell tell) : GalleryPart(parent, "TextsPart", std::move(tell)) {
  Fill();
}

void TextsPart::Fill() {}

}  // namespace mindloft
