#pragma once

#include <wx/frame.h>
#include <wx/listctrl.h>

#include <memory>

#include "controls/explorer/ctExplorer.h"
#include "tests/controls/explorer/FakeRows.h"
#include "tests/support/gui/PrivateServices.h"
#include "tests/support/gui/User.h"

namespace mindloft::test {

/// An explorer on the screen that lists a million rows, and a user in front of it.
class ExplorerFixture : public PrivateServices {
 protected:
  static constexpr std::int64_t kRows = 1'000'000;

  void SetUp() override;
  void TearDown() override;

  wxListCtrl& List() const { return user_->Find<wxListCtrl>("list"); }
  void Press(int key, int modifiers = 0) { user_->Press(key, modifiers, "list"); }
  void Type(const wxString& text);
  /// Clicks the row, which must be visible, with the mouse.
  void ClickRow(long row, int modifiers = 0, wxEventType type = wxEVT_LEFT_DOWN);
  void ClickHeading(int column);
  wxString FocusedName() const;
  std::vector<wxString> SelectedKeys() const;

  wxFrame* frame_ = nullptr;
  ctExplorer* explorer_ = nullptr;
  std::unique_ptr<User> user_;
  std::shared_ptr<FakeRows> rows_;
  int selectionChanges_ = 0;
  int countChanges_ = 0;
};

}  // namespace mindloft::test
