#pragma once

#include <wx/string.h>

#include <string>

class wxTextCtrl;

namespace mindloft {

/// A password on its way from an entry field to the back end: UTF-8, overwritten when it goes. The toolkit's
/// own copies are beyond reach.
class SecretText {
 public:
  explicit SecretText(const wxTextCtrl& field);
  /// Takes the text over and overwrites that too.
  explicit SecretText(wxString text);
  ~SecretText();
  SecretText(const SecretText&) = delete;
  SecretText& operator=(const SecretText&) = delete;

  const std::string& Utf8() const { return text_; }

 private:
  std::string text_;
};

/// Overwrites the text with zeros and empties it.
void WipeText(std::string& text);
void WipeText(wxString& text);

}  // namespace mindloft
