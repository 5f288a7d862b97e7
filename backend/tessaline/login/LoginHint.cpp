#include "backend/tessaline/login/LoginHint.h"

#include <wx/stattext.h>

#include "backend/tessaline/login/WrappedLabel.h"

namespace mindloft {

void SetHint(wxStaticText& label, const wxString& text, const wxString& details, int width) {
  SetWrappedLabel(label, text, width);
  label.UnsetToolTip();
  if (!details.empty()) label.SetToolTip(details);
}

}  // namespace mindloft
