#include <wx/button.h>
#include <wx/sizer.h>

#include "tests/controls/buttons/ButtonFixture.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace {

constexpr const char* kPressedSpace = "KeyDown 32 0";

}  // namespace

class MyButtonKeyboardTest : public ButtonFixture {
 protected:
  void Focus(wxWindow& window) {
    window.SetFocus();
    WaitFor([&] { return window.HasFocus(); }, "the focus");
    Settle();
    log_.clear();
  }
  /// As the toolkit tells a key that is held: again and again, without a release.
  void Repeat(int key, int times) {
    for (int time = 0; time < times; ++time) {
      wxKeyEvent event(wxEVT_KEY_DOWN);
      event.SetEventObject(button_);
      event.m_keyCode = key;
      button_->HandleWindowEvent(event);
    }
  }
};

TEST_F(MyButtonKeyboardTest, EnterAndSpaceClickOnThePress) {
  Focus(*button_);
  Press(WXK_RETURN);
  EXPECT_THAT(LogUntil("KeyUp 13 0"), ElementsAre("Click", "KeyDown 13 0", "KeyPress 13", "KeyUp 13 0"));
  Press(WXK_SPACE);
  EXPECT_THAT(LogUntil("KeyUp 32 0"), ElementsAre("Click", kPressedSpace, "KeyPress 32", "KeyUp 32 0"));
  Press('B', wxMOD_SHIFT);
  EXPECT_THAT(LogUntil("KeyUp 66 1"), testing::IsSupersetOf({"KeyDown 66 1", "KeyPress 66", "KeyUp 66 1"}));
  EXPECT_TRUE(dialog_->IsShown()) << "the dialog's own handling of Enter is not wanted";
}

TEST_F(MyButtonKeyboardTest, SpaceLooksPressedUntilItIsReleased) {
  const wxImage unfocused = Face();
  Focus(*button_);
  WaitForFace([&](const wxImage& face) { return !AreEqual(face, unfocused); }, "the focused face");
  const wxImage idle = Face();
  simulator_.KeyDown(WXK_SPACE);
  LogUntil(kPressedSpace);
  WaitForFace([&](const wxImage& face) { return !AreEqual(face, idle); }, "the pressed face");
  simulator_.KeyUp(WXK_SPACE);
  LogUntil("KeyUp 32 0");
  WaitForFace([&](const wxImage& face) { return AreEqual(face, idle); }, "the face as before");
}

TEST_F(MyButtonKeyboardTest, AHeldKeyClicksOnce) {
  for (const int key : {static_cast<int>(WXK_RETURN), static_cast<int>(WXK_SPACE)}) {
    Focus(*button_);
    Repeat(key, 4);
    Log told = Told();
    EXPECT_EQ(std::count(told.begin(), told.end(), "Click"), 1);
    EXPECT_EQ(told.size(), 5U) << "each repeat is told";
    // The key was released elsewhere: the next press is a new one.
    Focus(*before_);
    Focus(*button_);
    Repeat(key, 1);
    EXPECT_THAT(Told(), Contains("Click"));
    Focus(*before_);
  }
}

TEST_F(MyButtonKeyboardTest, LockedItIgnoresTheKeys) {
  button_->SetCaption("&Save");
  button_->SetLocked(true);
  Focus(*button_);
  Press(WXK_SPACE);
  Press('S', wxMOD_ALT);
  Press(WXK_TAB);
  WaitFor([this] { return after_->HasFocus(); }, "the keys before");
  EXPECT_THAT(log_, IsEmpty());
}

TEST_F(MyButtonKeyboardTest, TabLeavesItBothWays) {
  Focus(*button_);
  Press(WXK_TAB);
  WaitFor([this] { return after_->HasFocus(); }, "the next box");
  Focus(*button_);
  Press(WXK_TAB, wxMOD_SHIFT);
  WaitFor([this] { return before_->HasFocus(); }, "the box before");
  EXPECT_THAT(Told(), Not(Contains("Click")));
}

TEST_F(MyButtonKeyboardTest, AccessKeysClickFromAnywhereInTheForm) {
  const struct {
    const char* caption;
    int key;
    bool clicks;
  } cases[] = {
      {"&Save", 'S', true},         {"Sa&ve", 'V', true},  {"Save && &exit", 'E', true},
      {"Save && exit", 'E', false}, {"&Save", 'V', false},
  };
  for (const auto& each : cases) {
    button_->SetCaption(each.caption);
    for (wxWindow* from : {static_cast<wxWindow*>(before_), static_cast<wxWindow*>(after_)}) {
      Focus(*from);
      Press(each.key, wxMOD_ALT);
      if (each.clicks) {
        EXPECT_THAT(LogUntil("Click"), Contains("Click")) << each.caption;
        EXPECT_TRUE(button_->HasFocus());
      } else {
        // What is typed afterwards has arrived when the key before it has.
        Press('X');
        WaitFor([&] { return dynamic_cast<wxTextCtrl*>(from)->GetValue().Contains("x"); }, "what was typed");
        EXPECT_THAT(Told(), IsEmpty()) << each.caption;
        dynamic_cast<wxTextCtrl*>(from)->Clear();
      }
    }
  }
  EXPECT_TRUE(before_->IsEmpty()) << "an access key types nothing";
}

TEST_F(MyButtonKeyboardTest, AnAccessKeyNeedsAButtonThatCanBeUsed) {
  button_->SetCaption("&Save");
  for (const bool hide : {false, true}) {
    button_->Enable(hide);
    button_->Show(!hide);
    Focus(*before_);
    Press('S', wxMOD_ALT);
    Press('X');
    WaitFor([this] { return before_->GetValue().Contains("x"); }, "what was typed");
    EXPECT_THAT(Told(), IsEmpty());
    before_->Clear();
  }
}

TEST_F(MyButtonKeyboardTest, ADisplacedButtonListensToItsNewForm) {
  button_->SetCaption("&Save");
  wxDialog other(nullptr, wxID_ANY, "other", wxPoint(600, 500), wxSize(200, 200));
  auto* box = new wxTextCtrl(&other, wxID_ANY);
  button_->Reparent(&other);
  other.Show();
  other.Raise();
  WaitFor([&] { return other.IsActive(); }, "the other form");
  Focus(*box);
  Press('S', wxMOD_ALT);
  EXPECT_THAT(LogUntil("Click"), Contains("Click"));
  button_->Reparent(dialog_);
}

TEST_F(MyButtonKeyboardTest, EnterAndEscReachTheFormsButton) {
  button_->SetDefault();
  Focus(*before_);
  Press(WXK_RETURN);
  EXPECT_THAT(LogUntil("Click"), ElementsAre("Click"));
  EXPECT_TRUE(before_->HasFocus()) << "Enter leaves the focus in the box";

  Focus(*after_);
  Press(WXK_RETURN);
  WaitFor([this] { return after_->GetNumberOfLines() == 2; }, "the line break");
  EXPECT_THAT(Told(), IsEmpty()) << "a box of lines has Enter for itself";

  dialog_->SetEscapeId(button_->GetId());
  Focus(*before_);
  Press(WXK_ESCAPE);
  EXPECT_THAT(LogUntil("Click"), ElementsAre("Click"));
  EXPECT_TRUE(dialog_->IsShown());
}

}  // namespace mindloft::test
