#include <algorithm>

#include "tests/controls/buttons/ButtonFixture.h"
#include "tests/support/gui/ModalDriver.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

namespace {

constexpr const char* kOver = "sound .\\resources\\over.wav";
constexpr const char* kClick = "sound .\\resources\\click.wav";

}  // namespace

class MyButtonMouseTest : public ButtonFixture {};

TEST_F(MyButtonMouseTest, HoversFromTheFirstMovementUntilThePointerHasGone) {
  PointAtButton();
  EXPECT_THAT(LogUntil(kOver), ElementsAre("MouseEnter 0", kOver));
  PointAt(*button_, Middle() + wxPoint(3, 0));
  WaitFor([this] { return !log_.empty(); }, "a movement");
  EXPECT_THAT(log_, Contains("MouseMove 0 0"));
  EXPECT_THAT(Told(), IsEmpty()) << "it is entered once";
  PointAway();
  EXPECT_THAT(LogUntil("MouseLeave 0"), ElementsAre("MouseLeave 0"));
  PointAtButton();
  EXPECT_THAT(LogUntil(kOver), ElementsAre("MouseEnter 0", kOver));
}

TEST_F(MyButtonMouseTest, TheSoundComesAfterWhatWasPending) {
  button_->MouseEnter = [this](std::int16_t) {
    log_.push_back("MouseEnter");
    dialog_->CallAfter([this] { log_.push_back("pending"); });
  };
  PointAtButton();
  EXPECT_THAT(LogUntil(kOver), ElementsAre("MouseEnter", "pending", kOver));
}

TEST_F(MyButtonMouseTest, ClicksWhenItIsPressed) {
  PointAtButton();
  LogUntil(kOver);
  simulator_.MouseDown();
  EXPECT_THAT(LogUntil("MouseDown 1 0"), ElementsAre(kClick, "Click", "MouseDown 1 0"));
  EXPECT_TRUE(button_->HasFocus());
  simulator_.MouseUp();
  EXPECT_THAT(LogUntil("MouseUp 1 0"), ElementsAre("MouseUp 1 0"));

  // Dragged off before the release, it has clicked all the same.
  PointAtButton();
  Told();
  simulator_.MouseDown();
  LogUntil("MouseDown 1 0");
  PointAway();
  EXPECT_THAT(LogUntil("MouseLeave 1"), Not(Contains("Click")));
  simulator_.MouseUp();
}

TEST_F(MyButtonMouseTest, TheRightButtonOnlyTells) {
  PointAtButton();
  LogUntil(kOver);
  simulator_.MouseDown(wxMOUSE_BTN_RIGHT);
  EXPECT_THAT(LogUntil("MouseDown 2 0"), ElementsAre("MouseDown 2 0"));
  simulator_.MouseUp(wxMOUSE_BTN_RIGHT);
  EXPECT_THAT(LogUntil("MouseUp 2 0"), ElementsAre("MouseUp 2 0"));
  // The middle one is a press like the left one.
  simulator_.MouseClick(wxMOUSE_BTN_MIDDLE);
  EXPECT_THAT(LogUntil("MouseUp 4 0"), ElementsAre(kClick, "Click", "MouseDown 4 0", "MouseUp 4 0"));
}

TEST_F(MyButtonMouseTest, ADoubleClickIsTwoPresses) {
  PointAtButton();
  LogUntil(kOver);
  simulator_.MouseDblClick();
  WaitFor([this] { return std::count(log_.begin(), log_.end(), "MouseUp 1 0") == 2; }, "both releases");
  EXPECT_THAT(Told(), ElementsAre(kClick, "Click", "MouseDown 1 0", "MouseUp 1 0", kClick, "Click",
                                  "MouseDown 1 0", "MouseUp 1 0"));
  EXPECT_FALSE(button_->HasCapture());
}

TEST_F(MyButtonMouseTest, LockedItIgnoresTheMouse) {
  button_->SetLocked(true);
  after_->SetFocus();
  WaitFor([this] { return after_->HasFocus(); }, "the focus elsewhere");
  PointAtButton();
  simulator_.MouseDblClick();
  simulator_.MouseClick(wxMOUSE_BTN_RIGHT);
  PointAt(*before_, wxPoint() + before_->GetSize() / 2);
  simulator_.MouseClick();
  WaitFor([this] { return before_->HasFocus(); }, "the clicks before");
  EXPECT_THAT(log_, IsEmpty());
  // Unlocked it takes the next movement.
  button_->SetLocked(false);
  PointAtButton();
  EXPECT_THAT(LogUntil(kOver), ElementsAre("MouseEnter 0", kOver));
}

TEST_F(MyButtonMouseTest, OpensItsLinkAfterTheClick) {
  const struct {
    const char* url;
    const char* opened;  ///< empty: nothing
  } cases[] = {
      {"", ""},
      {"mailto:help@example.com", "open mailto:help@example.com"},
      {"https://example.com/a?b=c:d", "open https://example.com/a?b=c:d"},
      {"www.example.com/help", "open http://www.example.com/help"},
      {"example.com:8080", "open http://example.com:8080"},
  };
  for (const auto& each : cases) {
    button_->SetURL(each.url);
    button_->SetFocus();
    WaitFor([this] { return button_->HasFocus(); }, "the focus");
    log_.clear();
    Press(WXK_RETURN);
    Log told = LogUntil("KeyUp 13 0");
    Log expected{"Click"};
    if (*each.opened) expected.emplace_back(each.opened);
    told.resize(std::min(told.size(), expected.size()));
    EXPECT_EQ(told, expected) << each.url;
    EXPECT_EQ(std::string(each.opened).empty(), expected.size() == 1);
  }
}

TEST_F(MyButtonMouseTest, TellsWhenALinkCannotBeOpened) {
  shellAnswer_ = false;
  for (const char* url : {"https://example.com/", "file:///etc/passwd", "C:\\Windows\\notepad.exe"}) {
    ModalDriver modal;
    modal.ExpectMessage(61560, wxID_OK);
    button_->SetURL(url);
    button_->GoToURL();
    EXPECT_THAT(modal.LastMessage().utf8_string(), testing::HasSubstr(url));
  }
  EXPECT_THAT(log_, ElementsAre("open https://example.com/")) << "programs and files are no links";
}

TEST_F(MyButtonMouseTest, AClickMayEndTheButtonOrThrow) {
  ModalDriver modal;
  modal.ExpectForm("frmErrorManager", [](User& user) { user.Click("cmdOK"); });
  button_->Click = [] { throw Error(ErrorNumber::Overflow, "on purpose"); };
  PointAtButton();
  LogUntil(kOver);
  simulator_.MouseClick();
  LogUntil("MouseDown 1 0");
  modal.Verify();

  PointAtButton();
  button_->Click = [this] {
    log_.push_back("last");
    button_->Destroy();
  };
  button_->SetURL("https://example.com/");
  simulator_.MouseClick();
  WaitFor([this] { return std::find(log_.begin(), log_.end(), "last") != log_.end(); }, "the click");
  Settle();
  EXPECT_THAT(Told(), Not(Contains(StartsWith("open"))));
}

TEST_F(MyButtonMouseTest, AFormThatTheClickOpensLeavesNothingPressedBehind) {
  const wxImage idle = Face();
  button_->Click = [this] {
    wxDialog opened(dialog_, wxID_ANY, "opened");
    opened.CallAfter([&] {
      simulator_.MouseUp();
      opened.EndModal(wxID_OK);
    });
    opened.ShowModal();
    log_.emplace_back("closed");
  };
  const auto isTold = [this](const char* begin) {
    return std::any_of(log_.begin(), log_.end(), [&](const auto& line) { return line.starts_with(begin); });
  };
  PointAtButton();
  LogUntil(kOver);
  simulator_.MouseDown();
  WaitFor([&] { return isTold("closed"); }, "the form's end");
  PointAway();
  WaitFor([&] { return isTold("MouseLeave"); }, "the hovering's end");
  before_->SetFocus();
  WaitForFace([&](const wxImage& face) { return AreEqual(face, idle); }, "the face as before");
}

}  // namespace mindloft::test
