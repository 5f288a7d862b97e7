#include <gmock/gmock.h>
#include <wx/srchctrl.h>

#include "core/ErrorHandling.h"
#include "tests/controls/explorer/ExplorerFixture.h"
#include "tests/support/gui/ModalDriver.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {

using testing::ElementsAre;

class ExplorerListTest : public ExplorerFixture {};

TEST_F(ExplorerListTest, AsksForTheRowsOnTheScreenOnly) {
  EXPECT_EQ(List().GetItemCount(), kRows);
  EXPECT_LE(rows_->lastAsked, 200);
  struct Step {
    int key;
    int modifiers;
    std::int64_t focus;
  };
  const std::int64_t page = List().GetCountPerPage();
  for (const Step step : {Step{WXK_END, 0, kRows - 1}, Step{WXK_UP, 0, kRows - 2}, Step{WXK_HOME, 0, 0},
                          Step{'A', wxMOD_CONTROL, 0}, Step{WXK_END, wxMOD_SHIFT, kRows - 1},
                          Step{WXK_PAGEUP, 0, kRows - page}, Step{WXK_HOME, wxMOD_CONTROL, 0}}) {
    rows_->ForgetQuestions();
    Press(step.key, step.modifiers);
    Settle();
    EXPECT_NEAR(explorer_->FocusedListRow(), step.focus, 2) << step.key;
    EXPECT_LE(rows_->rowsAsked, 4 * 64) << step.key;
    EXPECT_GE(explorer_->FocusedListRow(), List().GetTopItem()) << step.key;
    EXPECT_LE(explorer_->FocusedListRow(), List().GetTopItem() + page) << step.key;
  }
}

TEST_F(ExplorerListTest, KeysAndClicksMakeTheSameSelectionOnEveryDesktop) {
  ClickRow(2);
  EXPECT_THAT(SelectedKeys(), ElementsAre("k0000002"));
  ClickRow(4, wxMOD_CONTROL);
  ClickRow(6, wxMOD_CONTROL | wxMOD_SHIFT);
  EXPECT_THAT(SelectedKeys(), ElementsAre("k0000002", "k0000004", "k0000005", "k0000006"));
  ClickRow(5, wxMOD_CONTROL);
  EXPECT_EQ(explorer_->SelectedListCount(), 3);
  ClickRow(4, 0, wxEVT_RIGHT_DOWN);
  EXPECT_EQ(explorer_->SelectedListCount(), 3) << "a menu is for all selected rows";
  ClickRow(1, 0, wxEVT_RIGHT_DOWN);
  EXPECT_THAT(SelectedKeys(), ElementsAre("k0000001"));
  Press(WXK_DOWN, wxMOD_SHIFT);
  Press(WXK_DOWN, wxMOD_SHIFT);
  Press(WXK_UP, wxMOD_SHIFT);
  EXPECT_THAT(SelectedKeys(), ElementsAre("k0000001", "k0000002"));
  Press(WXK_DOWN, wxMOD_CONTROL);
  EXPECT_EQ(explorer_->FocusedListRow(), 3);
  Press(WXK_SPACE, wxMOD_CONTROL);
  EXPECT_EQ(explorer_->SelectedListCount(), 3);
  for (const long row : {0L, 1L, 2L, 3L, 4L})
    EXPECT_EQ(List().GetItemState(row, wxLIST_STATE_SELECTED) != 0, row >= 1 && row <= 3) << row;
}

TEST_F(ExplorerListTest, AllOfAMillionRowsAreOneStep) {
  rows_->ForgetQuestions();
  Press('A', wxMOD_CONTROL);
  EXPECT_EQ(explorer_->SelectedListCount(), kRows);
  EXPECT_EQ(selectionChanges_, 1);
  ClickHeading(0);
  EXPECT_EQ(explorer_->SelectedListCount(), kRows) << "all rows stay selected in another order";
  ClickRow(3, wxMOD_CONTROL);
  EXPECT_EQ(explorer_->SelectedListCount(), kRows - 1);
  ClickHeading(0);
  EXPECT_EQ(explorer_->SelectedListCount(), kRows - 1);
  explorer_->SelectListRow(kRows - 4);
  Settle();
  EXPECT_THAT(SelectedKeys(), ElementsAre(FakeRows::Key(kRows - 4)));
  EXPECT_LE(rows_->rowsAsked, 20 * 64);
}

TEST_F(ExplorerListTest, SelectionFollowsItsRows) {
  ClickRow(2);
  ClickRow(4, wxMOD_CONTROL);
  ClickHeading(0);
  EXPECT_TRUE(explorer_->SortDescending());
  EXPECT_EQ(explorer_->FocusedListRow(), kRows - 1 - 4);
  EXPECT_THAT(SelectedKeys(), ElementsAre("k0000004", "k0000002"));
  ClickHeading(2);
  EXPECT_EQ(explorer_->SortColumn(), 0) << "that column cannot sort";
  ClickHeading(1);
  EXPECT_FALSE(explorer_->SortDescending());

  rows_->removed = {0, 4};
  const int before = selectionChanges_;
  explorer_->RefreshList();
  EXPECT_EQ(explorer_->ListCount(), kRows - 2);
  EXPECT_THAT(SelectedKeys(), ElementsAre("k0000002"));
  EXPECT_EQ(selectionChanges_, before + 1);
  EXPECT_EQ(FocusedName(), "0000006") << "the place of the row that has gone";

  explorer_->SelectListRow(500'000);
  Settle();
  const long top = List().GetTopItem();
  rows_->removed.insert(10);
  explorer_->RefreshList();
  EXPECT_EQ(List().GetTopItem(), top - 1) << "the same row stays at the top";
  EXPECT_EQ(explorer_->FocusedListRow(), 499'999);
}

TEST_F(ExplorerListTest, NeighboursStaySelectedWhenTheyMoveUp) {
  ClickRow(1);
  ClickRow(2, wxMOD_CONTROL);
  rows_->removed.insert(0);
  explorer_->RefreshList();
  EXPECT_THAT(SelectedKeys(), ElementsAre("k0000001", "k0000002"));
}

TEST_F(ExplorerListTest, FilterListsWhatIsTyped) {
  ClickRow(3);
  auto& search = user_->Find<wxSearchCtrl>("search");
  const int filters = rows_->filters;
  search.SetValue("0000");
  EXPECT_EQ(explorer_->ListCount(), 1000);
  EXPECT_EQ(explorer_->ListTotalCount(), kRows);
  EXPECT_EQ(rows_->filters, filters + 1) << "one question for one keystroke";
  EXPECT_EQ(countChanges_, 1);
  EXPECT_THAT(SelectedKeys(), ElementsAre("k0000003"));
  Press('A', wxMOD_CONTROL);
  search.SetValue("00000");
  EXPECT_EQ(explorer_->SelectedListCount(), 100);
  search.SetValue("000");
  EXPECT_EQ(explorer_->ListCount(), 10'000);
  EXPECT_EQ(explorer_->SelectedListCount(), 100) << "rows that come back are not selected unasked";
  search.SetValue("no such");
  EXPECT_EQ(explorer_->ListCount(), 0);
  EXPECT_EQ(explorer_->FocusedListRow(), -1);
  Press(WXK_END);
  Press(WXK_RETURN);
  explorer_->SetRows(rows_);
  EXPECT_TRUE(search.IsEmpty());
  EXPECT_EQ(explorer_->ListCount(), kRows);
}

TEST_F(ExplorerListTest, TypingJumpsToTheRow) {
  Type("12");
  EXPECT_EQ(explorer_->FocusedListRow(), -1) << "no row begins so";
  Press(WXK_HOME);
  Type("0012");
  EXPECT_EQ(FocusedName(), "0012000");
  Type("9");
  EXPECT_EQ(FocusedName(), "0012900");
  Press(WXK_BACK);
  Type("5");
  EXPECT_EQ(FocusedName(), "0012500");
  Press(WXK_HOME);
  Type("0");
  EXPECT_EQ(FocusedName(), "0000001") << "the first character leads on";
}

TEST_F(ExplorerListTest, VanishedRowsAreBlank) {
  for (std::int64_t number = 0; number < kRows; number += 1) {
    if (number == 5) number = kRows - 5;
    rows_->removed.insert(number);
  }
  Press(WXK_END);
  Settle();
  EXPECT_EQ(List().GetItemText(kRows - 1), "");
  explorer_->RefreshList();
  EXPECT_EQ(explorer_->ListCount(), kRows - 10);
  EXPECT_LT(explorer_->FocusedListRow(), kRows - 10);
}

TEST_F(ExplorerListTest, AFailingSourceIsShownOnce) {
  rows_->failing = true;
  ModalDriver modal;
  modal.ExpectForm("frmErrorManager", [](User& user) { user.Click("cmdOK"); });
  Press(WXK_END);
  Press(WXK_HOME);
  Type("0012");
  ClickHeading(0);
  Settle();
  EXPECT_EQ(rows_->failures, 1) << "a failing source is left alone until the next refresh";
  modal.Verify();
  explorer_->SelectListRow(kRows / 2);
  EXPECT_THROW(explorer_->SelectedListRows(), Error) << "a command must not go on with half of the rows";
  rows_->failing = false;
  explorer_->RefreshList();
  Settle();
  EXPECT_EQ(List().GetItemText(0), FakeRows::Name(0));
}

TEST_F(ExplorerListTest, KeysLeadFromPartToPart) {
  std::vector<int> keys;
  explorer_->keyDown = [&](int key, int) {
    keys.push_back(key);
    return key == WXK_F5;
  };
  std::int64_t opened = -1;
  explorer_->lvItemDblClick = [&](std::int64_t row) { opened = row; };
  explorer_->AddTreeNode(-1, "root", "59300", 0);
  Press(WXK_F5);
  Press(WXK_DOWN);
  Press(WXK_RETURN);
  EXPECT_EQ(opened, 0);
  EXPECT_THAT(keys, ElementsAre(WXK_F5, WXK_DOWN, WXK_RETURN));
  ClickRow(3, 0, wxEVT_LEFT_DCLICK);
  EXPECT_EQ(opened, 3);

  const auto focused = [this](const char* part) {
    wxWindow& window = user_->Find(part);
    WaitFor(
        [&] {
          for (wxWindow* each = wxWindow::FindFocus(); each; each = each->GetParent())
            if (each == &window) return true;
          return false;
        },
        std::string("focus in ") + part);
  };
  user_->Press(WXK_F6);
  focused("tree");
  user_->Press(WXK_F6);
  focused("search");
  user_->Find<wxSearchCtrl>("search").SetValue("00001");
  user_->Press(WXK_ESCAPE);
  EXPECT_EQ(explorer_->Filter(), "");
  user_->Press(WXK_DOWN);
  focused("list");
  user_->Press('F', wxMOD_CONTROL);
  focused("search");
  user_->Press(WXK_F6, wxMOD_SHIFT);
  focused("tree");
}

}  // namespace mindloft::test
