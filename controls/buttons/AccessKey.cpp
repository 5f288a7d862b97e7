#include "controls/buttons/AccessKey.h"

#include <wx/event.h>

namespace mindloft {

bool IsAccessKey(const wxKeyEvent& event, const wxString& accessKeys) {
  if (event.GetModifiers() != wxMOD_ALT) return false;
  // The key's character in the present keyboard layout, or the Latin letter that it has besides.
  for (const int character : {event.GetKeyCode(), static_cast<int>(event.GetUnicodeKey())}) {
    const bool types = character > WXK_SPACE && (character < WXK_START || character > WXK_SPECIAL20);
    if (types && accessKeys.Contains(wxString(wxUniChar(character)).Upper())) return true;
  }
  return false;
}

}  // namespace mindloft
