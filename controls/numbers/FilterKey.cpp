#include "controls/numbers/FilterKey.h"

#include "platform/SystemLocale.h"
#include "platform/Unicode.h"

namespace mindloft {
namespace {

bool IsFullWidthTyped() {
  return platform::IsDoubleByteLocale(platform::SystemDefaultLocale());
}

wxUniChar Narrow(wxUniChar character) {
  return wxUniChar(static_cast<unsigned int>(platform::NarrowForm(character.GetValue())));
}

}  // namespace

void FilterKey(const wxString& characters, int& keyCode, bool onlyThese) {
  if (keyCode <= 0) return;
  const wxUniChar typed(static_cast<unsigned int>(keyCode));
  const wxUniChar counted = IsFullWidthTyped() ? Narrow(typed) : typed;
  const bool found = characters.find(counted) != wxString::npos;
  if (found != onlyThese)
    keyCode = 0;
  else if (onlyThese)
    keyCode = static_cast<int>(counted.GetValue());
}

wxString NarrowText(const wxString& text) {
  if (text.IsAscii() || !IsFullWidthTyped()) return text;
  wxString narrow;
  for (const wxUniChar each : text) narrow += Narrow(each);
  return narrow;
}

}  // namespace mindloft
