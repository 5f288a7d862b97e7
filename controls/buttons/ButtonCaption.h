#pragma once

#include <wx/string.h>

namespace mindloft {

/// A caption in whose text "&" marks the next character as an access key and "&&" is the character itself.
struct ButtonCaption {
  explicit ButtonCaption(const wxString& marked);

  wxString text;        ///< as it is read
  wxString accessKeys;  ///< upper case, each once
  int underlined = -1;  ///< the place of the first access key in the text
};

}  // namespace mindloft
