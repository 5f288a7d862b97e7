#include "controls/LabelBefore.h"

#include <wx/stattext.h>

namespace mindloft {

wxString LabelBefore(const wxWindow& window) {
  const wxWindow* sibling = window.GetPrevSibling();
  const auto* label = dynamic_cast<const wxStaticText*>(sibling);
  return label ? label->GetLabelText() : wxString();
}

}  // namespace mindloft
