#include "gallery/NumbersPart.h"

#include "controls/numbers/SpunBox.h"

namespace mindloft {

NumbersPart::NumbersPart(wxWindow* parent, Tell tell) : GalleryPart(parent, "NumbersPart", std::move(tell)) {
  Fill();
}

void NumbersPart::Fill() {
  for (wxWindow* child : GetChildren()) {
    auto* number = dynamic_cast<SpunBox*>(child);
    if (!number) continue;
    const wxString name = child->GetName();
    number->Change = [this, name] { TellEvent(name, "Change"); };
    number->KeyDown = [this, name](int& keyCode, int shift) {
      TellEvent(name, "KeyDown", wxString::Format("%d, %d", keyCode, shift));
    };
    number->KeyPress = [this, name](int& keyAscii) {
      TellEvent(name, "KeyPress", wxString::Format("%d", keyAscii));
    };
  }
}

}  // namespace mindloft
