#pragma once

#include <wx/frame.h>

namespace mindloft {

/// The rich-text controls side by side, with a document that has something of all that they know.
class frmRichTexts : public wxFrame {
 public:
  frmRichTexts();
};

}  // namespace mindloft
