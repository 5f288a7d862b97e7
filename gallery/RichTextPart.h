#pragma once

#include "gallery/GalleryPart.h"

namespace mindloft {

class RichTextControl;

/// The rich-text controls.
class RichTextPart : public GalleryPart {
 public:
  RichTextPart(wxWindow* parent, Tell tell);

 private:
  void TellEvents(RichTextControl& control) const;
};

}  // namespace mindloft
