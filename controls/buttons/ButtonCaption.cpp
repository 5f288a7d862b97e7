#include "controls/buttons/ButtonCaption.h"

namespace mindloft {

ButtonCaption::ButtonCaption(const wxString& marked) {
  bool marks = false;
  for (const wxUniChar character : marked) {
    if (!marks && character == '&') {
      marks = true;
      continue;
    }
    if (marks && character != '&') {
      const wxString key = wxString(character).Upper();
      if (underlined < 0) underlined = static_cast<int>(text.length());
      if (!accessKeys.Contains(key)) accessKeys += key;
    }
    marks = false;
    text += character;
  }
}

}  // namespace mindloft
