#pragma once

#include <gmock/gmock.h>
#include <wx/dialog.h>
#include <wx/image.h>
#include <wx/textctrl.h>
#include <wx/uiaction.h>

#include <memory>
#include <string>
#include <vector>

#include "controls/buttons/MyButton.h"
#include "platform/Shell.h"
#include "platform/ui/Sound.h"
#include "tests/support/gui/PrivateServices.h"

namespace mindloft::test {

using Log = std::vector<std::string>;

/// Whether the two are the same pixel by pixel.
bool AreEqual(const wxImage& one, const wxImage& other);

/// A dialog on the screen with a box, a MyButton and another box, and the real mouse and keyboard in front of
/// it. Everything that the button raises, plays and opens is told in order.
class ButtonFixture : public PrivateServices {
 protected:
  void SetUp() override;
  void TearDown() override;

  /// Moves the real pointer, and waits until the system has it there.
  void PointAt(const wxWindow& window, wxPoint place);
  void PointAtButton() { PointAt(*button_, Middle()); }
  /// Nowhere near the dialog.
  void PointAway();
  wxPoint Middle() const;
  void Press(int key, int modifiers = 0);
  /// Waits until that was told, then takes all that was told so far.
  Log LogUntil(const std::string& last);
  /// Without the movements of the mouse, whose number is the system's.
  Log Told();
  /// Waits until the face is drawn that way.
  void WaitForFace(const std::function<bool(const wxImage&)>& condition, const std::string& what);
  wxImage Face() const { return button_->picBuffer().ConvertToImage(); }
  /// Lets the button log its events.
  void Watch(MyButton& button);

  wxDialog* dialog_ = nullptr;
  wxTextCtrl* before_ = nullptr;
  MyButton* button_ = nullptr;
  wxTextCtrl* after_ = nullptr;
  wxUIActionSimulator simulator_;
  Log log_;
  bool shellAnswer_ = true;

 private:
  std::unique_ptr<platform::FakeSound> sound_;
  std::unique_ptr<platform::FakeShell> shell_;
};

}  // namespace mindloft::test
