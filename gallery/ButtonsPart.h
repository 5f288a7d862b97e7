#pragma once

#include "controls/buttons/ButtonLook.h"
#include "gallery/GalleryPart.h"

namespace mindloft {

class MyButton;

/// The button controls in every state.
class ButtonsPart : public GalleryPart {
 public:
  ButtonsPart(wxWindow* parent, Tell tell);

 private:
  void Fill();
  void AddStates();
  void TellEvents(MyButton& button) const;
};

}  // namespace mindloft
