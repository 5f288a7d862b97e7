#pragma once

#include <wx/dialog.h>
#include <wx/textctrl.h>

#include <memory>
#include <string>
#include <vector>

#include "controls/numbers/SpunBox.h"
#include "tests/support/gui/PrivateServices.h"
#include "tests/support/gui/User.h"

namespace mindloft::test {

/// A dialog with a numeric control, labelled, and a box beside it that can take the focus; a user in front of
/// them.
class NumbersFixture : public PrivateServices {
 protected:
  void SetUp() override;
  void TearDown() override;

  /// Shows the control, which has the form as parent, and gives it the focus.
  void Show(SpunBox& control);
  wxTextCtrl& Box() const { return *box_; }
  wxString Text() const { return box_->GetValue(); }
  /// Types at the caret, where the simulated user would begin with the whole text selected.
  void Type(const wxString& text);
  void Press(int key, int modifiers = 0) { user_->Press(key, modifiers, box_->GetName().utf8_str()); }
  /// Puts the text in the place of the selection, as the box's menu does: past the filter of keys.
  void Paste(const wxString& text);
  void ReplaceAll(const wxString& text);
  /// Holds the mouse on an arrow for that many steps, and releases it.
  void HoldArrow(bool up, int steps = 1);
  /// A step of the arrows that the mouse has no part in.
  void StepArrow(bool up);
  void TurnWheel(wxWindow& over, int rotation);
  void Enter();
  void Leave();
  /// The events since the last call: "Change 12", "KeyPress 49".
  std::vector<std::string> Events();

  wxDialog* form_ = nullptr;
  wxTextCtrl* other_ = nullptr;
  wxWindow* label_ = nullptr;
  SpunBox* control_ = nullptr;
  std::unique_ptr<User> user_;

 private:
  wxTextCtrl* box_ = nullptr;
  SpinArrows* arrows_ = nullptr;
  bool focused_ = false;
  std::vector<std::string> events_;
};

}  // namespace mindloft::test
