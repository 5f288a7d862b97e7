#include "platform/ui/AccessKeys.h"

#include <wx/window.h>

namespace mindloft::platform {

wxWindow* ControlBehind(const wxWindow& label) {
  wxWindow* next = label.GetNextSibling();
  while (next && !next->CanAcceptFocusFromKeyboard()) next = next->GetNextSibling();
  return next;
}

}  // namespace mindloft::platform
