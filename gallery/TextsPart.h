#pragma once

#include "gallery/GalleryPart.h"

namespace mindloft {

struct TextBoxEvents;

/// The text controls in every state.
class TextsPart : public GalleryPart {
 public:
  TextsPart(wxWindow* parent, Tell tell);

 private:
  void TellEvents(const wxString& name, TextBoxEvents& events) const;
  void Fill();
};

}  // namespace mindloft
