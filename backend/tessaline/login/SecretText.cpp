#include "backend/tessaline/login/SecretText.h"

#include <wx/textctrl.h>

#include "backend/tessaline/Text.h"

namespace mindloft {

SecretText::SecretText(const wxTextCtrl& field) : SecretText(field.GetValue()) {}

SecretText::SecretText(wxString text) {
  text_ = ToUtf8(text);
  WipeText(text);
}

SecretText::~SecretText() {
  WipeText(text_);
}

void WipeText(std::string& text) {
  // Through a volatile pointer, or the compiler drops stores to a text that nobody reads again.
  volatile char* bytes = text.data();
  for (std::size_t i = 0; i < text.size(); ++i) bytes[i] = 0;
  text.clear();
}

void WipeText(wxString& text) {
  // A wxString shares its characters with no other.
  volatile auto* characters = const_cast<wxStringCharType*>(text.wx_str());
  for (std::size_t i = 0; i < text.length(); ++i) characters[i] = 0;
  text.clear();
}

}  // namespace mindloft
