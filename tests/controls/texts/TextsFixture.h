#pragma once

#include <wx/frame.h>
#include <wx/stattext.h>

#include <memory>
#include <string>
#include <vector>

#include "controls/texts/EditBox.h"
#include "controls/texts/TextBoxEvents.h"
#include "tests/support/gui/PrivateServices.h"
#include "tests/support/gui/User.h"

namespace mindloft::test {

/// A frame with a text control, labelled, and a box beside it that can take the focus; a user in front of
/// them.
class TextsFixture : public PrivateServices {
 protected:
  void SetUp() override;
  void TearDown() override;

  /// Shows the control, which has the frame as parent, and gives it the focus. Its events are recorded.
  template <typename Control>
  Control& Show(Control* control) {
    Record(*control);
    Place(*control);
    return *control;
  }
  EditBox& Box(const char* name = "MyText") const { return user_->Find<EditBox>(name); }
  /// Types at the caret, where the simulated user would begin with the whole text selected.
  void Type(const wxString& text, const char* name = "MyText");
  void Press(int key, int modifiers = 0, const char* name = "MyText") { user_->Press(key, modifiers, name); }
  void Click(wxEventType type, const char* name = "MyText", wxPoint place = {3, 3});
  /// Puts the text onto the clipboard and pastes it as the box's menu does.
  void Paste(const wxString& text, const char* name = "MyText");
  static wxString Clipboard();
  static void SetClipboard(const wxString& text);
  void Leave();
  /// The events since the last call: "Change", "KeyPress 49".
  std::vector<std::string> Events();

  wxFrame* frame_ = nullptr;
  wxStaticText* label_ = nullptr;
  wxTextCtrl* other_ = nullptr;
  std::unique_ptr<User> user_;
  std::vector<std::string> events_;

 private:
  void Record(TextBoxEvents& events);
  void Place(wxWindow& control);
};

}  // namespace mindloft::test
