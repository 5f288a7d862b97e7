#pragma once

#include <wx/frame.h>

#include <memory>
#include <string>
#include <vector>

#include "controls/richtext/RichTextControl.h"
#include "tests/support/gui/PrivateServices.h"
#include "tests/support/gui/User.h"

namespace mindloft::test {

/// A frame with a rich-text control that has the focus; a user in front of it.
class RichTextFixture : public PrivateServices {
 protected:
  void SetUp() override;
  void TearDown() override;

  /// Shows the control, which has the frame as parent. Its events are recorded.
  template <typename Control>
  Control& Show(Control* control) {
    Place(*control);
    return *control;
  }
  /// Types at the caret.
  void Type(const wxString& text);
  void Press(int key, int modifiers = 0);
  /// Puts a table with one letter in each cell behind what stands there; the caret is in its first cell.
  void PutLetters(int rows, int columns);
  /// What stands in the cells of the table that the caret is in: "ab|cd".
  std::string Cells();
  std::string Text() const { return control_->Text().utf8_string(); }
  /// The document as it is stored.
  std::string Stored() const { return control_->Content().Save(); }
  /// Takes back and repeats the last step; what was stored before and after it must be there again.
  void ExpectUndoable(const std::string& before);
  std::vector<std::string> Events();

  wxFrame* frame_ = nullptr;
  RichTextControl* control_ = nullptr;
  std::unique_ptr<User> user_;
  std::vector<std::string> events_;

 private:
  void Place(RichTextControl& control);
};

}  // namespace mindloft::test
