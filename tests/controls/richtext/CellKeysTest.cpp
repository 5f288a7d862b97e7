#include <gmock/gmock.h>

#include "controls/richtext/CellKeys.h"
#include "controls/richtext/TXControl.h"
#include "controls/richtext/TableEditing.h"
#include "tests/controls/richtext/RichTextFixture.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {
namespace {

class CellKeysTest : public RichTextFixture {
 protected:
  void SetUp() override {
    RichTextFixture::SetUp();
    control_ = &Show(new TXControl(frame_));
  }
  /// "row,column" of the caret's cell, with the caret's place in it and what is selected; "outside 3".
  std::string Place() {
    const TableCell place = CaretCell(control_->Editor());
    const std::string caret = std::to_string(control_->Editor().GetInsertionPoint());
    if (!place.table) return "outside " + caret;
    return std::to_string(place.row) + "," + std::to_string(place.column) + " at " + caret + " [" +
           control_->Editor().GetStringSelection().utf8_string() + "]";
  }
  std::string After(int key, int modifiers = 0) {
    Press(key, modifiers);
    return Place();
  }
  /// Text in the paragraph before and after a table of letters; the caret is in the first cell.
  void PutBetweenTexts(int rows, int columns) {
    control_->SetText("above\n\nbelow");
    control_->SetSelStart(6);
    PutLetters(rows, columns);
  }
  void GoTo(int row, int column, long place = 0) {
    RichEditor& editor = control_->Editor();
    editor.SetFocusObject(CaretCell(editor).table->GetCell(row, column));
    editor.SelectText(place, 0);
  }
};

TEST_F(CellKeysTest, TabGoesFromCellToCell) {
  PutLetters(2, 2);
  const std::string before = Stored();
  EXPECT_EQ(After(WXK_TAB), "0,1 at 1 [b]");
  EXPECT_EQ(After(WXK_TAB), "1,0 at 1 [c]");
  EXPECT_EQ(After(WXK_TAB, wxMOD_SHIFT), "0,1 at 1 [b]");
  EXPECT_EQ(After(WXK_TAB, wxMOD_SHIFT), "0,0 at 1 [a]");
  EXPECT_EQ(After(WXK_TAB, wxMOD_SHIFT), "0,0 at 1 [a]") << "there is none before the first";
  EXPECT_EQ(Stored(), before);
  Type("new");
  EXPECT_EQ(Cells(), "newb|cd") << "what is typed takes the place of what is selected";
  Press(WXK_TAB);
  Press(WXK_DELETE);
  Press(WXK_TAB);
  EXPECT_EQ(After(WXK_TAB, wxMOD_SHIFT), "0,1 at 0 []") << "nothing to select";
}

TEST_F(CellKeysTest, TabInTheLastCellAddsARow) {
  PutLetters(2, 2);
  GoTo(1, 1);
  const std::string before = Stored();
  EXPECT_EQ(After(WXK_TAB), "2,0 at 0 []");
  EXPECT_EQ(Cells(), "ab|cd|..");
  ExpectUndoable(before);
}

TEST_F(CellKeysTest, TabOnlyMovesInALockedText) {
  PutLetters(1, 2);
  control_->SetLocked(true);
  const std::string before = Stored();
  EXPECT_EQ(After(WXK_TAB), "0,1 at 1 [b]");
  EXPECT_EQ(After(WXK_TAB), "0,1 at 1 [b]");
  EXPECT_EQ(After(WXK_TAB, wxMOD_SHIFT), "0,0 at 1 [a]");
  EXPECT_EQ(Stored(), before);
}

TEST_F(CellKeysTest, TabStaysInTheInnermostTable) {
  PutLetters(2, 2);
  GoTo(0, 1);
  PutLetters(1, 2);
  EXPECT_EQ(After(WXK_TAB), "0,1 at 1 [b]");
  EXPECT_EQ(After(WXK_TAB), "1,0 at 0 []") << "a row of the inner table";
  EXPECT_EQ(Cells(), "ab|..");
  EXPECT_EQ(CaretCell(control_->Editor()).table->GetColumnCount(), 2);
}

TEST_F(CellKeysTest, TabTypesOutsideTablesAndLeavesTheTextWithCtrl) {
  Type("a");
  Press(WXK_TAB);
  EXPECT_EQ(Text(), "a\t");
  PutLetters(1, 2);
  EXPECT_EQ(After(WXK_TAB, wxMOD_ALT), "0,0 at 0 []");
}

TEST_F(CellKeysTest, ArrowsGoAcrossTheTableAndOutOfIt) {
  PutBetweenTexts(2, 2);
  const std::string before = Stored();
  for (const char* expected : {"0,0 at 1 []", "0,1 at 0 []", "0,1 at 1 []", "1,0 at 0 []", "1,0 at 1 []",
                               "1,1 at 0 []", "1,1 at 1 []", "outside 8"})
    EXPECT_EQ(After(WXK_RIGHT), expected);
  for (const char* expected : {"1,1 at 1 []", "1,1 at 0 []", "1,0 at 1 []", "1,0 at 0 []", "0,1 at 1 []",
                               "0,1 at 0 []", "0,0 at 1 []", "0,0 at 0 []", "outside 5"})
    EXPECT_EQ(After(WXK_LEFT), expected);
  EXPECT_EQ(After(WXK_RIGHT), "0,0 at 0 []");
  Press(WXK_TAB);
  EXPECT_EQ(After(WXK_LEFT), "0,1 at 0 []") << "to the beginning of what was selected";
  EXPECT_EQ(After(WXK_LEFT), "0,0 at 1 []");
  EXPECT_EQ(Stored(), before);
}

TEST_F(CellKeysTest, ArrowsGoDownAndUpThroughTheTableAndOutOfIt) {
  PutBetweenTexts(2, 2);
  GoTo(0, 1, 1);
  Type("\nxy");
  GoTo(0, 1);
  EXPECT_EQ(After(WXK_DOWN), "0,1 at 2 []") << "the cell's second line";
  EXPECT_EQ(After(WXK_DOWN), "1,1 at 0 []");
  EXPECT_EQ(After(WXK_DOWN), "outside 8");
  EXPECT_EQ(After(WXK_UP), "1,0 at 0 []");
  EXPECT_EQ(After(WXK_UP), "0,0 at 0 []");
  EXPECT_EQ(After(WXK_UP), "outside 5");
  EXPECT_EQ(After(WXK_DOWN), "0,0 at 1 []");
  control_->Zoom(200);
  GoTo(1, 1, 1);
  EXPECT_EQ(After(WXK_UP), "0,1 at 3 []") << "also when the text is shown larger";
}

TEST_F(CellKeysTest, ATableThatIsTheWholeTextCanBeLeft) {
  PutLetters(1, 1);
  Press(WXK_RIGHT);
  EXPECT_EQ(After(WXK_RIGHT), "outside 2") << "a paragraph comes with the table";
  Type("after");
  EXPECT_EQ(After(WXK_HOME, wxMOD_CONTROL), "outside 0");
  Type("before");
  EXPECT_EQ(After(WXK_RIGHT), "0,0 at 0 []");
  EXPECT_EQ(After(WXK_END, wxMOD_CONTROL), "outside 14");
  EXPECT_EQ(After(WXK_UP), "0,0 at 1 []");
  EXPECT_EQ(After(WXK_UP), "outside 6");
  EXPECT_EQ(Text().substr(0, 7), "before\n") << "in a paragraph of its own";
}

}  // namespace
}  // namespace mindloft::test
