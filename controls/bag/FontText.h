#pragma once

#include <wx/font.h>

#include "controls/bag/PropertyText.h"

namespace mindloft {

/// "Segoe UI, 9.75, Bold, Italic, Underline, Strikethrough": the face, the size in points, then what the font
/// has of these four. A weight other than bold and normal stands as "Weight 300". Empty: no font of its own.
template <>
struct PropertyText<wxFont> {
  static wxString Format(const wxFont& value);
  static wxFont Parse(const wxString& text);
};

}  // namespace mindloft
