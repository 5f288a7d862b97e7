#pragma once

#include <wx/panel.h>

#include <vector>

class wxStaticText;

namespace mindloft {

class RichTextControl;

/// Where the caret is (page or line, column), how large the text is shown, and whether keys insert or
/// overwrite. A press of the mouse on it goes nowhere.
class EditorStatusBar : public wxPanel {
 public:
  EditorStatusBar(wxWindow* parent, const wxString& name);
  void Show(const RichTextControl& control);
  using wxPanel::Show;

 protected:
  wxSize DoGetBestClientSize() const override;

 private:
  void Swallow(wxWindow& window);

  std::vector<wxStaticText*> fields_;
};

}  // namespace mindloft
