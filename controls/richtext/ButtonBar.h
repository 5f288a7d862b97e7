#pragma once

#include <wx/panel.h>

#include <vector>

class wxChoice;
class wxComboBox;
class wxToolBar;

namespace mindloft {

class RichTextControl;

/// The bar of choices (style, face, size) and buttons above the editor. Its groups stand in as many lines as
/// they need. The keyboard reaches all of it through the editor's keys and its context menu.
class ButtonBar : public wxPanel {
 public:
  ButtonBar(RichTextControl* control, const wxString& name);

  /// Places the groups for a width in pixels and returns the height that they need.
  int Arrange(int width);
  /// Shows what holds at the caret.
  void ShowState(const RichTextControl& control);
  /// Takes all texts anew in the current language.
  void LoadTexts();

 private:
  void AddChoices();
  void AddGroup(const std::vector<const char*>& commands);
  void OnStyle();
  void OnFace();
  void OnSize();

  RichTextControl& control_;
  wxChoice* cboStyle = nullptr;
  wxChoice* cboFace = nullptr;
  wxComboBox* cboSize = nullptr;
  std::vector<wxWindow*> groups_;
};

}  // namespace mindloft
