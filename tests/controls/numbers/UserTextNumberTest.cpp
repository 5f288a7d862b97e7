#include <gmock/gmock.h>
#include <wx/frame.h>
#include <wx/uiaction.h>

#include <limits>

#include "backend/errors/Error.h"
#include "controls/numbers/UserTextNumber.h"
#include "platform/SystemLocale.h"
#include "tests/controls/bag/RoundTrip.h"
#include "tests/controls/numbers/NumbersFixture.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr auto kLeast = std::numeric_limits<std::int32_t>::min();
constexpr auto kMost = std::numeric_limits<std::int32_t>::max();

class UserTextNumberTest : public NumbersFixture {
 protected:
  void SetUp() override {
    NumbersFixture::SetUp();
    number_ = new UserTextNumber(form_, "txtNumber");
    number_->SetMaxValue(10);
    Show(*number_);
  }
  UserTextNumber* number_ = nullptr;
};

TEST_F(UserTextNumberTest, IsKeptInForms) {
  ExpectDefaults<UserTextNumber>("UserTextNumber", {{"Enabled", "True"},
                                                    {"BackColor", "&H80000005"},
                                                    {"MinValue", "0"},
                                                    {"MaxValue", "0"},
                                                    {"Increment", "1"},
                                                    {"DisplayFormat", "###0"},
                                                    {"DisplayUpDownArrow", "True"},
                                                    {"BorderStyle", "1"},
                                                    {"Alignment", "0"},
                                                    {"Locked", "False"},
                                                    {"DefaultText", ""},
                                                    {"Text", ""}});
  ExpectRoundTrips<UserTextNumber>("UserTextNumber", {"0", "1", "2"});
  ExpectRefusals("UserTextNumber", "Locked");
  EXPECT_THAT(RefusalOf("UserTextNumber", "<Alignment>3</Alignment>"), testing::HasSubstr("Alignment"));
  ControlForm form("UserTextNumber", "<DefaultText>25</DefaultText>");
  EXPECT_EQ(form.Get<UserTextNumber>().Text(), "25");
}

TEST_F(UserTextNumberTest, TakesDigitsAndMinusOnly) {
  Type("a1.,2-x");
  EXPECT_EQ(number_->Text(), "12-");
  Box().Clear();
  Events();
  Type("5x");
  EXPECT_THAT(Events(), ElementsAre("KeyDown 53,0", "KeyPress 53", "Change 5", "KeyDown 88,0", "KeyPress 0"));
  for (const int letter : {'C', 'V', 'X', 'A'}) Press(letter, wxMOD_CONTROL);
  EXPECT_THAT(Events(), ElementsAre("KeyDown 67,2", "KeyPress 0", "KeyDown 86,2", "KeyPress 0",
                                    "KeyDown 88,2", "KeyPress 0", "KeyDown 65,2", "KeyPress 0"));
  Press(WXK_LEFT);
  EXPECT_THAT(Events(), ElementsAre("KeyDown 37,0"));
  number_->KeyPress = [](int& key) { key = key == '7' ? '8' : 0; };
  Box().Clear();
  Type("78");
  EXPECT_EQ(number_->Text(), "8");
}

TEST_F(UserTextNumberTest, TakesFullWidthDigitsWhereTheyAreTyped) {
  const platform::FakeSystemLocale japanese(1041);
  Type(L"\xFF13\xFF21\xFF14");
  EXPECT_EQ(number_->Text(), "34");
  Paste(L"\xFF15");
  Leave();
  EXPECT_EQ(number_->Text(), "345");
}

TEST_F(UserTextNumberTest, StepsFromTheNumberInTheBox) {
  struct Case {
    const char* text;
    std::int32_t least, most, increment;
    bool up;
    const char* stepped;
  };
  const Case cases[] = {
      {"5", 0, 10, 1, true, "6"},
      {"5", 0, 10, 1, false, "4"},
      {"10", 0, 10, 1, true, "10"},
      {"0", 0, 10, 1, false, "0"},
      {"8", 0, 10, 5, true, "10"},
      {"99", 0, 10, 1, true, "10"},
      {"99", 0, 10, 1, false, "9"},
      {"-7", 0, 10, 1, true, "1"},
      {"2.5", 0, 10, 1, true, "3"},
      {"12a", 3, 10, 1, true, "4"},
      {"99999999999999999999", 0, 10, 1, true, "10"},
      {"\xF0\x9F\x98\x80", 3, 10, 1, false, "3"},
      {"5", 0, 0, 1, true, "0"},
      {"5", 10, 0, 1, true, "0"},
      {"2147483647", kLeast, kMost, 1, true, "2147483647"},
      {"-2147483648", kLeast, kMost, 1, false, "-2147483648"},
      // Leaves 32 bits: the spinner keeps the number.
      {"2147483646", kLeast, kMost, 2, true, "2147483646"},
      {"-2147483647", kLeast, kMost, 2, false, "-2147483647"},
  };
  for (const bool byKey : {true, false}) {
    for (const Case& each : cases) {
      number_->SetMinValue(each.least);
      number_->SetMaxValue(each.most);
      number_->SetIncrement(each.increment);
      number_->SetText(wxString::FromUTF8(each.text));
      if (byKey)
        Press(each.up ? WXK_UP : WXK_DOWN);
      else
        HoldArrow(each.up);
      EXPECT_EQ(number_->Text(), wxString(each.stepped)) << each.text << (byKey ? " by key" : " by mouse");
    }
  }
}

TEST_F(UserTextNumberTest, ABlankBoxBecomesTheLeastBeforeItIsStepped) {
  number_->SetMinValue(2);
  number_->SetDisplayFormat("0000");
  Events();
  StepArrow(true);
  EXPECT_THAT(Events(), ElementsAre("Change 2", "Change 0003"));
  number_->SetText("");
  Events();
  Press(WXK_UP);
  EXPECT_THAT(Events(), ElementsAre("Change 2", "Change 0003", "KeyDown 38,0"));
  number_->SetText("9");
  HoldArrow(true, 5);
  EXPECT_EQ(number_->Text(), "0010");
}

TEST_F(UserTextNumberTest, TheWheelStepsTheFocusedBoxByNotches) {
  number_->SetText("5");
  TurnWheel(Box(), 120);
  TurnWheel(Box(), 60);
  TurnWheel(Box(), 60);
  TurnWheel(user_->Find("UpDown1"), -360);
  EXPECT_EQ(number_->Text(), "4");
  Leave();
  TurnWheel(Box(), 120);
  EXPECT_EQ(number_->Text(), "4");
}

TEST_F(UserTextNumberTest, VerifiesThroughSinglePrecision) {
  const std::pair<const char*, bool> cases[] = {
      {"", true},
      {"  ", true},
      {"12", true},
      {"-12", true},
      {"2.5", true},
      {"2147483000", true},
      {"2147483647", false},  // rounds up to 2147483648
      {"-2147483648", true},
      {"3000000000", false},
      {"1e39", false},
      {"1e300", false},
      {"12a", false},
      {"-", false},
      {"1\xCC\x81", false},
      {"\xE2\x80\x8F"
       "1",
       false},
  };
  for (const auto& [text, valid] : cases)
    EXPECT_EQ(number_->TextVerify(wxString::FromUTF8(text)), valid) << text;
}

TEST_F(UserTextNumberTest, LeavingRestoresTheLastNumber) {
  number_->SetText("12");
  Paste("a");
  Leave();
  EXPECT_EQ(number_->Text(), "12");
  Enter();
  ReplaceAll("7");
  Box().SetInsertionPoint(1);
  Leave();
  EXPECT_EQ(Box().GetInsertionPoint(), 1);
  Enter();
  for (const char* text : {"x", "\xF0\x9F\x98\x80", "99999999999", "-", "\xEF\xBC\x91"}) {
    ReplaceAll(wxString::FromUTF8(text));
    Events();
    Leave();
    EXPECT_EQ(number_->Text(), "7") << text;
    EXPECT_THAT(Events(), ElementsAre("Change 7"));
    Enter();
  }
  ReplaceAll(" ");
  Leave();
  EXPECT_EQ(number_->Text(), " ");
}

TEST_F(UserTextNumberTest, AppliesItsPropertiesToTheBox) {
  Events();
  number_->SetText("3");
  number_->SetText("3");
  EXPECT_THAT(Events(), ElementsAre("Change 3"));
  number_->SetLocked(true);
  EXPECT_THROW(user_->Type("Text1", "4"), std::runtime_error);
  number_->SetLocked(false);
  number_->SetText("1234");
  number_->SetSelStart(1);
  number_->SetSellength(2);
  EXPECT_EQ(Box().GetStringSelection(), "23");
  number_->SetSellength(99);
  EXPECT_EQ(number_->Sellength(), 3);
  number_->SetSelStart(-5);
  EXPECT_EQ(number_->SelStart(), 0);
  number_->SetBackColor(ControlColour(0x0000FF));
  EXPECT_EQ(Box().GetBackgroundColour(), wxColour(255, 0, 0));
  EXPECT_EQ(Box().GetForegroundColour(), *wxWHITE);
  EXPECT_THROW(number_->SetBorderStyle(2), Error);
  EXPECT_THROW(number_->SetAlignment(-1), Error);
  // The box is made anew and keeps all the rest.
  number_->SetSelStart(2);
  number_->SetLocked(true);
  number_->SetAlignment(1);
  number_->SetBorderStyle(0);
  Settle();
  auto& box = user_->Find<wxTextCtrl>("Text1");
  EXPECT_TRUE(box.HasFlag(wxTE_RIGHT));
  EXPECT_EQ(box.GetValue(), "1234");
  EXPECT_EQ(box.GetInsertionPoint(), 2);
  EXPECT_FALSE(box.IsEditable());
  EXPECT_EQ(box.GetBackgroundColour(), wxColour(255, 0, 0));
  EXPECT_EQ(box.GetForegroundColour(), *wxWHITE);
  EXPECT_TRUE(box.HasFocus());
}

TEST_F(UserTextNumberTest, TheBoxFillsWhatTheSpinnerLeaves) {
  auto& arrows = user_->Find("UpDown1");
  for (const int width : {200, 80, 15, 1}) {
    number_->SetSize(width, 40);
    const wxSize size = number_->GetClientSize();
    EXPECT_EQ(Box().GetPosition(), wxPoint(0, 0));
    if (width < 50) continue;  // narrower than the desktop draws them
    EXPECT_EQ(arrows.GetPosition(), wxPoint(Box().GetSize().x, 0));
    EXPECT_EQ(Box().GetSize().x + arrows.GetSize().x, size.x);
    EXPECT_EQ(arrows.GetSize().y, size.y);
  }
  number_->SetSize(200, 40);
  number_->SetDisplayUpDownArrow(false);
  EXPECT_FALSE(arrows.IsShown());
  EXPECT_EQ(Box().GetSize().x, number_->GetClientSize().x);
}

TEST_F(UserTextNumberTest, ADisabledOneRefusesEverything) {
  number_->SetEnabled(false);
  EXPECT_FALSE(Box().IsEnabled());
  EXPECT_FALSE(user_->Find("UpDown1").IsEnabled());
  EXPECT_THROW(user_->Type("Text1", "1"), std::runtime_error);
  EXPECT_FALSE(number_->Enabled());
}

TEST_F(UserTextNumberTest, WorksWithoutHandlers) {
  control_->Change = nullptr;
  control_->KeyDown = nullptr;
  control_->KeyPress = nullptr;
  control_->KeyUp = nullptr;
  Type("1");
  Press(WXK_UP);
  EXPECT_EQ(number_->Text(), "2");
  EXPECT_THAT(Events(), IsEmpty());
}

TEST_F(UserTextNumberTest, TheRealMouseStepsAndLeavesTheFocusInTheBox) {
  number_->SetText("5");
  auto& arrows = user_->Find("UpDown1");
  // The upper one is, where they stand side by side, the one at the far edge.
  const wxRect place = arrows.GetScreenRect();
  wxUIActionSimulator mouse;
  mouse.MouseMove(place.GetRight() - place.width / 5, place.y + place.height / 4);
  Settle();
  mouse.MouseDown();
  WaitFor([this] { return number_->Text() == "6"; }, "the step up");
  mouse.MouseUp();
  Settle();
  EXPECT_TRUE(Box().HasFocus());
}

TEST_F(UserTextNumberTest, TabGoesFromBoxToBox) {
  wxUIActionSimulator keyboard;
  keyboard.Char(WXK_TAB);
  WaitFor([this] { return other_->HasFocus(); }, "the focus behind the control");
  keyboard.Char(WXK_TAB, wxMOD_SHIFT);
  WaitFor([this] { return Box().HasFocus(); }, "the focus in the control again");
}

TEST_F(UserTextNumberTest, RightToLeftPutsTheSpinnerOnTheLeft) {
  wxFrame frame(nullptr, wxID_ANY, "right to left", wxDefaultPosition, wxSize(400, 200));
  frame.SetLayoutDirection(wxLayout_RightToLeft);
  auto* panel = new wxPanel(&frame);
  auto* number = new UserTextNumber(panel, "txtMirrored");
  number->SetSize(10, 10, 200, 40);
  frame.Show();
  User user(frame);
  WaitFor([&] { return user.Find("Text1").IsShownOnScreen() && panel->GetSize().x > 200; }, "the layout");
  // The window manager may size the frame once more.
  WaitFor([&] { return user.Find("UpDown1").GetScreenRect().x < user.Find("Text1").GetScreenRect().x; },
          "the spinner on the left");
}

}  // namespace mindloft::test
