#include <gmock/gmock.h>

#include "controls/texts/UseMultiLineTextBox.h"
#include "platform/SystemLocale.h"
#include "tests/controls/bag/RoundTrip.h"
#include "tests/controls/texts/TextsFixture.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {
namespace {

using testing::ElementsAre;

class UseMultiLineTextBoxTest : public TextsFixture {
 protected:
  UseMultiLineTextBox& Show() {
    return TextsFixture::Show(new UseMultiLineTextBox(frame_, "txtDescription"));
  }
};

TEST_F(UseMultiLineTextBoxTest, KeepsItsProperties) {
  ExpectDefaults<UseMultiLineTextBox>("UseMultiLineTextBox", {{"IsNumber", "False"},
                                                              {"Has3D", "True"},
                                                              {"MaxLength", "0"},
                                                              {"VerScrollBars", "True"},
                                                              {"Text", ""},
                                                              {"BackColor", "&H80000005"},
                                                              {"Enabled", "True"},
                                                              {"Locked", "False"},
                                                              {"TabStop", "True"}});
  ExpectRoundTrips<UseMultiLineTextBox>("UseMultiLineTextBox");
  ExpectRefusals("UseMultiLineTextBox", "TabStop");
}

TEST_F(UseMultiLineTextBoxTest, ShowsOneOfTwoBoxes) {
  auto& box = Show();
  Type("first");
  EXPECT_TRUE(user_->IsShown("MyText"));
  EXPECT_FALSE(user_->IsShown("txtNoScrollbar"));
  Events();
  box.SetVerScrollBars(false);
  Settle();
  EXPECT_THAT(Events(), ElementsAre());
  EXPECT_FALSE(user_->IsShown("MyText"));
  EXPECT_TRUE(user_->IsShown("txtNoScrollbar"));
  EXPECT_EQ(box.SelStart(), 5);
  Type(" second", "txtNoScrollbar");
  EXPECT_EQ(box.Text(), "first second");
  EXPECT_TRUE(Box("txtNoScrollbar").HasFocus());
  Press('Z', wxMOD_CONTROL, "txtNoScrollbar");
  Press('Z', wxMOD_CONTROL, "txtNoScrollbar");
  EXPECT_EQ(box.Text(), "") << "what was typed in the other box can be taken back, too";
  box.SetText("by the program");
  box.SetVerScrollBars(true);
  EXPECT_EQ(box.Text(), "by the program");
  EXPECT_EQ(Box().GetValue(), "by the program");
  EXPECT_EQ(Box().GetRect(), Box("txtNoScrollbar").GetRect());
}

TEST_F(UseMultiLineTextBoxTest, FiltersBothBoxesAndTellsNoKeyPress) {
  const platform::FakeSystemLocale english(1033);
  auto& box = Show();
  box.SetIsNumber(true);
  box.SetMaxLength(6);
  for (const char* name : {"MyText", "txtNoScrollbar"}) {
    box.SetVerScrollBars(name == std::string("MyText"));
    box.SetText("");
    Events();
    Type("1-2", name);
    EXPECT_EQ(box.Text(), "12") << name;
    EXPECT_THAT(Events(), ElementsAre("KeyDown 49,0", "Change", "KeyDown 45,0", "KeyDown 50,0", "Change"));
    Paste("3\n4x56789", name);
    EXPECT_EQ(box.Text(), "123456") << name;
    box.SetLocked(true);
    Type("7", name);
    Paste("8", name);
    EXPECT_EQ(box.Text(), "123456") << name;
    box.SetLocked(false);
  }
}

TEST_F(UseMultiLineTextBoxTest, CountsPlacesAsItsText) {
  auto& box = Show();
  Paste("one\r\ntwo\nthree");
  EXPECT_EQ(box.Text(), "one\ntwo\nthree");
  EXPECT_EQ(box.SelStart(), 13);
  box.SetSelStart(4);
  box.SetSellength(5);
  EXPECT_EQ(box.SelStart(), 4);
  EXPECT_EQ(box.Sellength(), 5);
  EXPECT_EQ(box.SelText(), "two\nt");
  Press(WXK_TAB, wxMOD_CONTROL);
  EXPECT_EQ(box.Text(), "one\n\three");
  EXPECT_EQ(box.SelStart(), 5);
  Press('Z', wxMOD_CONTROL);
  EXPECT_EQ(box.Text(), "one\ntwo\nthree");
  Press('A', wxMOD_CONTROL);
  EXPECT_EQ(box.Sellength(), 13);
}

TEST_F(UseMultiLineTextBoxTest, TabStopDecidesOnTheKeyboardOnly) {
  auto& box = Show();
  EXPECT_TRUE(Box().AcceptsFocusFromKeyboard());
  box.SetTabStop(false);
  EXPECT_FALSE(Box().AcceptsFocusFromKeyboard());
  EXPECT_FALSE(Box("txtNoScrollbar").AcceptsFocusFromKeyboard());
  EXPECT_TRUE(Box().AcceptsFocus());
}

TEST_F(UseMultiLineTextBoxTest, HoldsALargeText) {
  auto& box = Show();
  wxString large;
  while (large.length() < 1'000'000) large += wxString::FromUTF8("Zeile mit é, 😀 und \t Tab\n");
  Paste(large);
  EXPECT_EQ(box.Text(), large);
  Press('Z', wxMOD_CONTROL);
  EXPECT_EQ(box.Text(), "");
}

}  // namespace
}  // namespace mindloft::test
