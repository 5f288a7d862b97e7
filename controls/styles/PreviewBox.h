#pragma once

#include <wx/richtext/richtextctrl.h>

namespace mindloft {

/// A rich-text box that is only looked at: it takes neither the focus nor the mouse. It stays left to right
/// in every language, since the toolkit would mirror its glyphs.
class PreviewBox : public wxRichTextCtrl {
 public:
  PreviewBox(wxWindow* parent, const wxString& name);

  bool AcceptsFocus() const override { return false; }
  bool AcceptsFocusFromKeyboard() const override { return false; }
  void SetFocus() override {}
  void SetLayoutDirection(wxLayoutDirection direction) override;
};

}  // namespace mindloft
