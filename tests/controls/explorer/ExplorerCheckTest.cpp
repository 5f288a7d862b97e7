#include <gmock/gmock.h>

#include <set>

#include "core/ErrorHandling.h"
#include "tests/controls/explorer/ExplorerFixture.h"
#include "tests/support/gui/ModalDriver.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {

using testing::ElementsAre;
using testing::IsEmpty;

/// A list with check boxes, whose handler keeps the checked keys.
class ExplorerCheckTest : public ExplorerFixture {
 protected:
  void SetUp() override {
    ExplorerFixture::SetUp();
    explorer_->SetCheckBoxes([this](const ExplorerRow& row) {
      ++asked_;
      return checked_.count(row.key) > 0;
    });
    explorer_->lvCheckClick = [this](const ExplorerRow& row) {
      if (checked_.erase(row.key) == 0) checked_.insert(row.key);
    };
    explorer_->lvItemDblClick = [this](std::int64_t) { ++doubleClicks_; };
    Settle();
  }
  /// Clicks at `x` pixels from the row's beginning.
  void ClickAt(long row, int x, int modifiers = 0, wxEventType type = wxEVT_LEFT_DOWN) {
    wxRect rect;
    ASSERT_TRUE(List().GetItemRect(row, rect));
    wxWindow* window = &List();
    for (wxWindow* child : List().GetChildren())
      if (child->GetPosition().y > 0) window = child;
    wxMouseEvent event(type);
    event.SetEventObject(window);
    const wxPoint origin = window == &List() ? wxPoint() : window->GetPosition();
    event.SetPosition(wxPoint(rect.x + x, rect.y + rect.height / 2) - wxPoint(0, origin.y));
    event.SetControlDown((modifiers & wxMOD_CONTROL) != 0);
    window->HandleWindowEvent(event);
  }

  std::set<wxString> checked_;
  std::int64_t asked_ = 0;
  int doubleClicks_ = 0;
};

TEST_F(ExplorerCheckTest, TheBoxIsClickedAndTheRestOfTheRowSelects) {
  const int inBox = explorer_->FromDIP(9);
  ClickAt(2, inBox);
  EXPECT_THAT(checked_, ElementsAre("k0000002"));
  EXPECT_THAT(SelectedKeys(), ElementsAre("k0000002"));
  ClickAt(3, explorer_->FromDIP(60));
  EXPECT_THAT(SelectedKeys(), ElementsAre("k0000003"));
  EXPECT_THAT(checked_, ElementsAre("k0000002"));
  // Two fast clicks are two clicks, and no double click on the row.
  ClickAt(2, inBox);
  ClickAt(2, inBox, 0, wxEVT_LEFT_DCLICK);
  EXPECT_THAT(checked_, ElementsAre("k0000002"));
  EXPECT_EQ(doubleClicks_, 0);
  ClickAt(2, inBox, wxMOD_CONTROL);
  EXPECT_THAT(checked_, ElementsAre("k0000002")) << "Ctrl selects";
  ClickAt(2, explorer_->FromDIP(60), 0, wxEVT_LEFT_DCLICK);
  EXPECT_EQ(doubleClicks_, 1);
}

TEST_F(ExplorerCheckTest, SpaceClicksTheFocusedRow) {
  Press(WXK_END);
  Press(WXK_SPACE);
  EXPECT_THAT(checked_, ElementsAre("k0999999"));
  EXPECT_THAT(SelectedKeys(), ElementsAre("k0999999"));
  Press(WXK_SPACE);
  EXPECT_THAT(checked_, IsEmpty());
  Press(WXK_SPACE, wxMOD_CONTROL);
  EXPECT_THAT(checked_, IsEmpty()) << "Ctrl+Space selects";
}

TEST_F(ExplorerCheckTest, OnlyWhatIsDrawnIsAskedFor) {
  checked_ = {FakeRows::Key(kRows - 1)};
  Press(WXK_END);
  Settle();
  EXPECT_GT(asked_, 0);
  EXPECT_LT(asked_, 5000);
  explorer_->ClickCheck(kRows);
  explorer_->ClickCheck(-1);
  EXPECT_EQ(checked_.size(), 1u) << "a row that is not there";
}

TEST_F(ExplorerCheckTest, AFailureOfTheHandlerIsShown) {
  explorer_->lvCheckClick = [](const ExplorerRow&) { throw Error(ErrorNumber::Storage, "no"); };
  ModalDriver modal;
  modal.ExpectForm("frmErrorManager", [](User& user) { user.Click("cmdOK"); });
  explorer_->ClickCheck(0);
}

}  // namespace mindloft::test
