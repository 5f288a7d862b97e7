#include <gmock/gmock.h>

#include "controls/richtext/FindText.h"
#include "controls/richtext/TextControl.h"
#include "tests/controls/richtext/RichTextFixture.h"
#include "tests/support/gui/ModalDriver.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {
namespace {

using testing::HasSubstr;

TEST(FindInTest, KeepsToItsOptions) {
  const long none = -1;
  struct Case {
    const wchar_t* text;
    const wchar_t* wanted;
    std::size_t start;
    FindOptions options;
    long expected;
  };
  const Case cases[] = {
      {L"one two one", L"one", 0, {}, 0},
      {L"one two one", L"one", 1, {}, 8},
      {L"one two one", L"one", 9, {}, none},
      {L"One", L"one", 0, {}, 0},
      {L"One", L"one", 0, {true, false, false}, none},
      {L"\x00C4rger", L"\x00E4RGER", 0, {}, 0},
      {L"stone one_ one", L"one", 0, {false, true, false}, 11},
      {L"one", L"one", 0, {false, true, false}, 0},
      {L"one two one", L"one", 11, {false, false, true}, 8},
      {L"one two one", L"one", 10, {false, false, true}, 0},
      {L"one two one", L"one", 2, {false, false, true}, none},
      {L"stone", L"one", 5, {false, true, true}, none},
      {L"", L"x", 0, {}, none},
      {L"x", L"", 0, {}, none},
  };
  for (const Case& each : cases) {
    const auto found = FindIn(each.text, each.wanted, each.start, each.options);
    EXPECT_EQ(found == wxString::npos ? none : static_cast<long>(found), each.expected)
        << wxString(each.text).utf8_string() << " / " << wxString(each.wanted).utf8_string() << " "
        << each.start;
  }
}

class FindTextTest : public RichTextFixture {
 protected:
  void SetUp() override {
    RichTextFixture::SetUp();
    text_ = &Show(new TextControl(frame_));
  }
  /// The window that Find has opened.
  static User Window() {
    for (wxWindow* each : wxTopLevelWindows) {
      if (each->GetName() == "frmFindText" && each->IsShown()) return User(*each);
    }
    throw std::runtime_error("no window to search in");
  }

  TextControl* text_ = nullptr;
};

TEST_F(FindTextTest, GoesThroughTextAndCellsAndBeginsAnew) {
  text_->SetText("key one key");
  text_->Editor().SetInsertionPointEnd();
  PutLetters(1, 2);
  Type("key");
  text_->Editor().LeaveCells();
  text_->SetSelStart(0);
  RichEditor& editor = text_->Editor();
  const auto next = [&](const FindOptions& options) {
    EXPECT_TRUE(FindNext(editor, "KEY", options));
    EXPECT_EQ(text_->SelText(), "key");
    return std::pair(text_->CanModifyTable(), text_->SelStart());
  };
  const FindOptions forwards;
  EXPECT_EQ(next(forwards), std::pair(false, 0L));
  EXPECT_EQ(next(forwards), std::pair(false, 8L));
  EXPECT_TRUE(next(forwards).first) << "in the cell";
  EXPECT_EQ(next(forwards), std::pair(false, 0L)) << "from the beginning";
  const FindOptions backwards{false, false, true};
  EXPECT_TRUE(next(backwards).first);
  EXPECT_EQ(next(backwards), std::pair(false, 8L));
  EXPECT_FALSE(FindNext(editor, "missing", forwards));
  EXPECT_EQ(text_->SelText(), "key");
}

TEST_F(FindTextTest, ReplacesAllAsOneStep) {
  text_->SetText("a cat, a Cat, concat");
  text_->SetSelStart(2);
  text_->SetSellength(3);
  text_->Editor().ApplyBoldToSelection();
  const std::string before = Stored();
  EXPECT_EQ(ReplaceAll(text_->Editor(), "cat", "tiger", {false, true, false}), 2);
  EXPECT_EQ(Text(), "a tiger, a tiger, concat");
  EXPECT_THAT(Stored(), HasSubstr("fontweight=\"700\">\"tiger\"")) << "looks like what it replaced";
  ExpectUndoable(before);
  EXPECT_EQ(ReplaceAll(text_->Editor(), "tiger", "", {}), 2);
  EXPECT_EQ(Text(), "a , a , concat");
  EXPECT_EQ(ReplaceAll(text_->Editor(), "a", "aa", {}), 3) << "not what it has put in itself";
  EXPECT_EQ(ReplaceAll(text_->Editor(), "none", "x", {}), 0);
}

TEST_F(FindTextTest, TheWindowSearchesAndTells) {
  text_->SetText("one two one");
  ModalDriver modal;
  text_->Find("one", {true, false, false});
  {
    User user = Window();
    EXPECT_EQ(user.Title(), "Find");
    EXPECT_EQ(user.Read("txtFind"), "one");
    EXPECT_TRUE(user.IsChecked("chkCase"));
    EXPECT_FALSE(user.IsShown("txtReplace"));
    EXPECT_FALSE(user.IsShown("cmdReplaceAll"));
    user.Click("cmdFind");
    EXPECT_EQ(text_->SelStart(), 0);
    user.Click("cmdFind");
    EXPECT_EQ(text_->SelStart(), 8);
    user.Clear("txtFind");
    EXPECT_FALSE(user.IsEnabled("cmdFind"));
    user.Type("txtFind", "One");
    modal.ExpectMessage(62100, wxID_OK);
    user.Click("cmdFind");
    EXPECT_THAT(modal.LastMessage().utf8_string(), HasSubstr("One"));
  }
  text_->FindReplace();
  {
    User user = Window();
    EXPECT_EQ(user.Title(), "Replace");
    EXPECT_EQ(user.Read("txtFind"), "one") << "what is selected";
    user.Type("txtReplace", "1");
    user.Click("cmdReplace");
    EXPECT_EQ(Text(), "one two 1");
    EXPECT_EQ(text_->SelStart(), 0) << "the next one";
    modal.ExpectMessage(62101, wxID_OK);
    user.Click("cmdReplaceAll");
    EXPECT_EQ(Text(), "1 two 1");
    user.Click("cmdClose");
  }
  Settle();
  EXPECT_THROW(Window(), std::runtime_error);
}

}  // namespace
}  // namespace mindloft::test
