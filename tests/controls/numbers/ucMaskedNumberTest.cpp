#include <gmock/gmock.h>

#include "controls/numbers/ucMaskedNumber.h"
#include "platform/SystemLocale.h"
#include "tests/controls/bag/RoundTrip.h"
#include "tests/controls/numbers/NumbersFixture.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {

using testing::ElementsAre;
using testing::IsEmpty;

class ucMaskedNumberTest : public NumbersFixture {
 protected:
  void SetUp() override {
    NumbersFixture::SetUp();
    number_ = new ucMaskedNumber(form_, "txtNumber");
    Show(*number_);
  }
  ucMaskedNumber* number_ = nullptr;
};

TEST_F(ucMaskedNumberTest, IsKeptInForms) {
  ExpectDefaults<ucMaskedNumber>("ucMaskedNumber", {{"WholeNumber", "False"},
                                                    {"MinValue", "0"},
                                                    {"MaxValue", "10"},
                                                    {"Increment", "1"},
                                                    {"DecimalDigits", "2"},
                                                    {"DisplayFormat", ""},
                                                    {"Text", "0"},
                                                    {"DisplayUpDown", "True"},
                                                    {"Enabled", "True"}});
  ExpectRoundTrips<ucMaskedNumber>("ucMaskedNumber", {"2.5", "0.00"});
  ExpectRefusals("ucMaskedNumber", "WholeNumber");
  EXPECT_THAT(RefusalOf("ucMaskedNumber", "<Text>12a</Text>"), testing::HasSubstr("Text"));
  ControlForm form("ucMaskedNumber", "<Text>99</Text><DisplayFormat>0.00</DisplayFormat>");
  EXPECT_EQ(form.Get<ucMaskedNumber>().Text(), "10.00");
}

TEST_F(ucMaskedNumberTest, TakesWhatItsPropertiesAllow) {
  struct Case {
    bool wholeNumber;
    std::int16_t digits;
    const char* typed;
    const char* text;
  };
  for (const Case& each :
       {Case{false, 2, "-a1.5", "-1.5"}, Case{true, 2, "-1.5", "1.5"}, Case{false, 0, "-1.5", "-15"},
        Case{true, -1, "-1.5", "15"}, Case{false, 2, "1,2", "1,2"}}) {
    number_->SetWholeNumber(each.wholeNumber);
    number_->SetDecimalDigits(each.digits);
    number_->SetText("0");
    Box().SetInsertionPoint(0);
    // In front of the 0, which is taken away at last: an empty box holds a number, too.
    Type(each.typed);
    Settle();
    Box().Remove(Box().GetLastPosition() - 1, Box().GetLastPosition());
    EXPECT_EQ(number_->Text(), wxString(each.text));
  }
  Events();
  for (const int letter : {'C', 'V', 'X', 'Z'}) Press(letter, wxMOD_CONTROL);
  Press(WXK_RETURN);
  Press('x');
  EXPECT_THAT(Events(), ElementsAre("KeyDown 67,2", "KeyPress 0", "KeyDown 86,2", "KeyPress 22",
                                    "KeyDown 88,2", "KeyPress 24", "KeyDown 90,2", "KeyPress 26",
                                    "KeyDown 13,0", "KeyPress 0", "KeyDown 88,0", "KeyPress 0"));
  const platform::FakeSystemLocale japanese(1041);
  Box().SetSelection(-1, -1);
  Type(L"\xFF13\xFF21");
  EXPECT_EQ(number_->Text(), "3");
}

TEST_F(ucMaskedNumberTest, HoldsANumberAtAllTimes) {
  ReplaceAll("5");
  Events();
  Box().Clear();
  Settle();
  EXPECT_EQ(number_->Text(), "0");
  EXPECT_THAT(Events(), ElementsAre("Change 0"));
  // What is typed next takes the place of the 0.
  Type("7");
  EXPECT_EQ(number_->Text(), "7");
  Type("5");
  for (const char* text : {"a", "-", "1.2.3", "\xF0\x9F\x98\x80", "\xD9\xA1", "1\xCC\x81",
                           "\xE2\x80\x8F"
                           "7",
                           "1e999"}) {
    number_->SetText("75");
    ReplaceAll(wxString::FromUTF8(text));
    EXPECT_EQ(number_->Text(), "75") << text;
    number_->SetText(wxString::FromUTF8(text));
    EXPECT_EQ(number_->Text(), "75") << text;
  }
  ReplaceAll("   ");
  EXPECT_EQ(number_->Text(), "0");
  // Back to the text before the last keystroke, the caret one to the left of where it was.
  number_->SetText("123");
  Box().SetInsertionPoint(1);
  Type("-");
  Settle();
  EXPECT_EQ(number_->Text(), "123");
  EXPECT_EQ(Box().GetInsertionPoint(), 1);
}

TEST_F(ucMaskedNumberTest, LeavingBringsTheNumberIntoRangeAndFormatInSilence) {
  struct Case {
    std::int32_t least, most;
    const char* picture;
    const char* typed;
    const char* text;
  };
  const Case cases[] = {
      {0, 10, "", "99", "10"},
      {0, 10, "0.00", "99", "10.00"},
      {0, 10, "", "-1", "0"},
      {0, 10, "", "2.567", "2.567"},
      {0, 10, "0.00", "2.565", "2.57"},
      {0, 10, "0", "10.4", "10"},
      {-5, -2, "0", "0", "-2"},
      {10, 0, "0", "5", "0"},
      {0, 5000, "#,##0", "1234", "1,234"},
      {0, 5000, "#,##0", "1,23", "123"},
      {0, 300, "0.0", "29,7", "29.7"},
      {0, 300, "0.0 \"mm\"", "29,7 mm", "29.7 mm"},
      {0, 5000, "0.0", "1,234", "1234.0"},
      {0, 10, "0.0 \"mm\"", "3", "3.0 mm"},
      {0, 1, "0%", "0.25", "25%"},
  };
  for (const Case& each : cases) {
    number_->SetMinValue(each.least);
    number_->SetMaxValue(each.most);
    number_->SetDisplayFormat("0.####");
    if (*each.picture) number_->SetDisplayFormat(each.picture);
    Enter();
    ReplaceAll(each.typed);
    Events();
    if (!*each.picture) {
      EXPECT_EQ(number_->FormatText().length(),
                wxString(each.text).length() + (wxString(each.text).Contains(".") ? 0 : 1));
      continue;
    }
    EXPECT_EQ(number_->FormatText(), wxString(each.text));
    Leave();
    EXPECT_EQ(number_->Text(), wxString(each.text)) << each.picture;
    EXPECT_THAT(Events(), IsEmpty());
  }
}

TEST_F(ucMaskedNumberTest, DecimalDigitsBelowOneAreStoredAsNoneOnLeaving) {
  number_->SetDecimalDigits(-3);
  EXPECT_EQ(number_->DecimalDigits(), -3);
  Leave();
  EXPECT_EQ(number_->DecimalDigits(), 0);
}

TEST_F(ucMaskedNumberTest, ArrowKeysMoveTheTextAndTheSpinnerFollows) {
  number_->SetDisplayFormat("0.0");
  number_->SetText("8.5");
  Leave();
  Enter();
  Events();
  Press(WXK_UP);
  EXPECT_THAT(Events(), ElementsAre("Change 9.5", "KeyDown 38,0"));
  Press(WXK_UP);
  EXPECT_EQ(number_->Text(), "10.5");  // the spinner stood at 9
  Press(WXK_UP);
  EXPECT_EQ(number_->Text(), "10.0");
  Press(WXK_UP);
  EXPECT_EQ(number_->Text(), "10.0");
  number_->SetIncrement(7);
  Press(WXK_DOWN);
  EXPECT_EQ(number_->Text(), "3.0");
  Press(WXK_DOWN);
  EXPECT_EQ(number_->Text(), "-4.0");
  Press(WXK_DOWN);
  EXPECT_EQ(number_->Text(), "0.0");
}

TEST_F(ucMaskedNumberTest, TheBoxFollowsTheSpinnerUnderTheMouse) {
  struct Case {
    const char* text;
    std::int32_t increment;
    bool up;
    int steps;
    const char* followed;
  };
  const Case cases[] = {
      {"0", 1, true, 1, "1"},    {"0", 1, true, 4, "4"},     {"9", 1, true, 3, "10"},
      {"10", 1, true, 1, "10"},  {"2.5", 1, true, 2, "4.5"}, {"3.5", 1, false, 2, "1.5"},
      {"0.5", 1, false, 1, "0"}, {"9.5", 1, true, 1, "10"},  {"9", 3, true, 1, "10"},
      {"0", 1, false, 1, "0"},   {"99", 1, true, 1, "10"},
  };
  for (const Case& each : cases) {
    number_->SetIncrement(each.increment);
    number_->SetText(each.text);
    HoldArrow(each.up, each.steps);
    EXPECT_EQ(number_->Text(), each.followed) << each.text << " by " << each.increment;
    // The whole text is selected.
    EXPECT_EQ(Box().GetStringSelection(), each.followed);
  }
  number_->SetIncrement(1);
  number_->SetText("5");
  TurnWheel(Box(), 120);
  StepArrow(true);
  EXPECT_EQ(number_->Text(), "7");
}

TEST_F(ucMaskedNumberTest, DisablesAndHidesItsParts) {
  number_->SetEnabled(false);
  EXPECT_FALSE(Box().IsEnabled());
  EXPECT_FALSE(user_->Find("UpDown").IsEnabled());
  number_->SetEnabled(true);
  number_->SetDisplayUpDown(false);
  EXPECT_FALSE(user_->Find("UpDown").IsShown());
  EXPECT_EQ(Box().GetSize().x, number_->GetClientSize().x);
}

}  // namespace mindloft::test
