#pragma once

#include <wx/font.h>
#include <wx/textctrl.h>

#include "platform/ui/TextBox.h"

namespace mindloft {

/// Changes the font of a text control's box: `change` gets it and alters it.
template <typename Change>
void ChangeFont(wxTextCtrl& box, Change change) {
  wxFont font = box.GetFont();
  change(font);
  if (!font.IsOk() || font == box.GetFont()) return;
  box.SetFont(font);
  platform::ApplyUnderline(box);
  box.GetParent()->InvalidateBestSize();
}

inline bool IsBold(const wxWindow& box) {
  return box.GetFont().GetNumericWeight() >= wxFONTWEIGHT_BOLD;
}

inline bool IsItalic(const wxWindow& box) {
  return box.GetFont().GetStyle() != wxFONTSTYLE_NORMAL;
}

inline void SetBold(wxTextCtrl& box, bool bold) {
  ChangeFont(box, [&](wxFont& font) { font.SetWeight(bold ? wxFONTWEIGHT_BOLD : wxFONTWEIGHT_NORMAL); });
}

inline void SetItalic(wxTextCtrl& box, bool italic) {
  ChangeFont(box, [&](wxFont& font) { font.SetStyle(italic ? wxFONTSTYLE_ITALIC : wxFONTSTYLE_NORMAL); });
}

}  // namespace mindloft
