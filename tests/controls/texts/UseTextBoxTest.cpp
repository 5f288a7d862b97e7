#include <gmock/gmock.h>

#include "controls/texts/UseTextBox.h"
#include "platform/SystemLocale.h"
#include "platform/ui/Metrics.h"
#include "platform/ui/TextBox.h"
#include "platform/ui/VisualStyle.h"
#include "tests/controls/bag/RoundTrip.h"
#include "tests/controls/texts/TextsFixture.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

class UseTextBoxTest : public TextsFixture {
 protected:
  UseTextBox& Show() {
    auto& box = TextsFixture::Show(new UseTextBox(frame_, "txtServer"));
    box.KeyPress = [this](int& key) { events_.push_back("KeyPress " + std::to_string(key)); };
    return box;
  }
};

TEST_F(UseTextBoxTest, KeepsItsProperties) {
  ExpectDefaults<UseTextBox>("UseTextBox", {{"IsNumber", "False"},
                                            {"Has3D", "True"},
                                            {"MaxLength", "500"},
                                            {"Text", ""},
                                            {"BackColor", "&H80000005"},
                                            {"PassWordChar", ""},
                                            {"Enabled", "True"},
                                            {"FontUnderline", "False"},
                                            {"Locked", "False"}});
  ExpectRoundTrips<UseTextBox>("UseTextBox");
  ExpectRefusals("UseTextBox", "Locked");
  EXPECT_THAT(RefusalOf("UseTextBox", "<MaxLength>-1</MaxLength>"), HasSubstr("MaxLength"));
  EXPECT_THAT(RefusalOf("UseTextBox", "<MaxLength>40000</MaxLength>"), HasSubstr("MaxLength"));
  ControlForm form("UseTextBox", "<Text>" + wxString('x', 600) + "</Text><MaxLength>600</MaxLength>");
  EXPECT_EQ(form.Get<UseTextBox>().Text().length(), 600U) << "the limit counts wherever it stands";
}

TEST_F(UseTextBoxTest, LetsOnlyNumbersIn) {
  const platform::FakeSystemLocale english(1033);
  auto& box = Show();
  box.SetIsNumber(true);
  Type("12.5");
  EXPECT_EQ(box.Text(), "12.5");
  Events();
  Type("-a");
  EXPECT_EQ(box.Text(), "12.5");
  EXPECT_THAT(Events(), ElementsAre("KeyDown 45,0", "KeyPress 0", "KeyDown 65,0", "KeyPress 0"));
  box.SetText("-3");
  EXPECT_EQ(box.Text(), "-3") << "the filter is one of the user's input";
  Box().SetInsertionPointEnd();
  Paste("a4b\n5");
  EXPECT_EQ(box.Text(), "-345");
  Box().WriteText("x6");
  EXPECT_EQ(box.Text(), "-3456") << "what comes neither by keys nor by pasting";
  Box().SelectAll();
  Paste("nothing");
  EXPECT_EQ(box.Text(), "-3456");
  Box().SelectAll();
  Press('C', wxMOD_CONTROL);
  Settle();
  EXPECT_EQ(Clipboard(), "-3456");
  SetClipboard("7");
  Press('V', wxMOD_CONTROL);
  Settle();
  EXPECT_EQ(box.Text(), "7");
}

TEST_F(UseTextBoxTest, CountsWholeCharacters) {
  auto& box = Show();
  const wxString face = wxString::FromUTF8("😀");
  box.SetMaxLength(3);
  Type("abcd");
  EXPECT_EQ(box.Text(), "abc");
  Box().SelectText(1, 1);
  Type("X");
  EXPECT_EQ(box.Text(), "aXc") << "what is typed over the selection has room";
  box.SetText(face + face + face + face);
  EXPECT_EQ(box.Text(), face + face + face);
  box.SetText("ab");
  Box().SetInsertionPoint(1);
  Paste(face + face);
  EXPECT_EQ(box.Text(), "a" + face + "b");
  EXPECT_EQ(Box().SelectionStart(), static_cast<long>(1 + face.length()));
  Box().WriteText(face);
  EXPECT_EQ(box.Text(), "a" + face + "b");
  box.SetMaxLength(1);
  EXPECT_EQ(box.Text(), "a");
  box.SetMaxLength(0);
  box.SetText(wxString('x', 60'000));
  EXPECT_EQ(box.Text().length(), 60'000U);
}

TEST_F(UseTextBoxTest, TellsItsEvents) {
  auto& box = Show();
  Type("a");
  EXPECT_THAT(Events(), ElementsAre("KeyDown 65,0", "KeyPress 97", "Change"));
  box.SetText("a");
  EXPECT_THAT(Events(), ElementsAre());
  box.SetText("b");
  EXPECT_THAT(Events(), ElementsAre("Change"));
  Click(wxEVT_LEFT_DOWN);
  Click(wxEVT_LEFT_UP);
  EXPECT_THAT(Events(), ElementsAre("MouseDown 1,0", "MouseUp 1", "Click"));
  Click(wxEVT_LEFT_DOWN);
  Click(wxEVT_LEFT_UP, "MyText", {-50, 3});
  EXPECT_THAT(Events(), ElementsAre("MouseDown 1,0", "MouseUp 1"));
  Click(wxEVT_RIGHT_DOWN);
  Click(wxEVT_LEFT_DCLICK);
  EXPECT_THAT(Events(), ElementsAre("MouseDown 2,0", "DblClick"));
  box.KeyPress = [](int& key) { key = key == 'x' ? 'y' : 0; };
  Box().SetInsertionPointEnd();
  Type("xz");
  EXPECT_EQ(box.Text(), "by");
  box.KeyDown = [](int& key, int) { key = 0; };
  box.KeyPress = {};
  Type("x");
  EXPECT_EQ(box.Text(), "by");
}

TEST_F(UseTextBoxTest, TakesBackAndSelectsAll) {
  auto& box = Show();
  Type("one two");
  Press('Z', wxMOD_CONTROL);
  EXPECT_EQ(box.Text(), "one");
  Press('Y', wxMOD_CONTROL);
  EXPECT_EQ(box.Text(), "one two");
  Press('Z', wxMOD_CONTROL);
  Press('Z', wxMOD_CONTROL | wxMOD_SHIFT);
  EXPECT_EQ(box.Text(), "one two");
  Press('A', wxMOD_CONTROL);
  EXPECT_EQ(box.SelText(), "one two");
  Paste("three\r\nfour\r\n");
  EXPECT_EQ(box.Text(), "three four");
  Press('Z', wxMOD_CONTROL);
  EXPECT_EQ(box.Text(), "one two");
  box.SetText("by the program");
  EXPECT_FALSE(Box().CanUndo());
  box.SetSelStart(3);
  box.SetSellength(4);
  EXPECT_EQ(box.SelText(), "the ");
  box.SetSelText("a ");
  EXPECT_EQ(box.Text(), "by a program");
  box.SetSelStart(99);
  EXPECT_EQ(box.SelStart(), 12);
}

TEST_F(UseTextBoxTest, KeepsPasswordsToItself) {
  auto& box = Show();
  box.SetPassWordChar("*");
  Type("secret");
  SetClipboard("before");
  Box().SelectAll();
  Box().Copy();
  Press('C', wxMOD_CONTROL);
  Settle();
  EXPECT_EQ(Clipboard(), "before");
  Box().SelectAll();
  Box().Cut();
  Settle();
  EXPECT_EQ(Clipboard(), "before");
  EXPECT_EQ(box.Text(), "secret");
  EXPECT_FALSE(Box().CanUndo());
  box.SetPassWordChar("");
  Box().SelectAll();
  Box().Copy();
  Settle();
  EXPECT_EQ(Clipboard(), "secret");
}

TEST_F(UseTextBoxTest, CanBeLockedAndDisabled) {
  auto& box = Show();
  box.SetText("old");
  box.SetLocked(true);
  Type("x");
  Paste("y");
  Press('Z', wxMOD_CONTROL);
  EXPECT_EQ(box.Text(), "old");
  box.SetLocked(false);
  box.SetEnabled(false);
  EXPECT_FALSE(Box().IsEnabled());
  EXPECT_FALSE(box.Enabled());
  box.SetText("new");
  EXPECT_EQ(box.Text(), "new");
}

TEST_F(UseTextBoxTest, FollowsTheSystemsLook) {
  auto& box = Show();
  const auto backgroundOf = [&] { return user_->Find("txtBackGround").GetRect(); };
  const wxRect whole(wxPoint(), box.GetClientSize());
  const wxRect inset(platform::TwipsToPixelsX(8, &box), platform::TwipsToPixelsY(8, &box), 0, 0);
  const auto look = [&](bool styles, bool has3D) {
    const platform::FakeVisualStyles fake(styles);
    box.SetHas3D(!has3D);
    box.SetHas3D(has3D);
    return backgroundOf();
  };
  EXPECT_EQ(look(true, true), whole);
  EXPECT_EQ(look(true, false), whole);
  EXPECT_EQ(look(false, true), whole);
  const wxRect flat = look(false, false);
  EXPECT_EQ(flat.GetPosition(), inset.GetPosition());
  EXPECT_LT(flat.width, whole.width);
  // Nothing of the text is cut, also where the box is as small as it wants to be.
  const wxSize best = box.GetBestSize();
  EXPECT_GE(best.y, other_->GetBestSize().y);
  for (const bool styles : {true, false}) {
    const platform::FakeVisualStyles fake(styles);
    box.SetSize(wxSize(200, best.y));
    EXPECT_GE(Box().GetSize().y, Box().GetCharHeight()) << styles;
  }
}

TEST_F(UseTextBoxTest, SaysWhatItIs) {
  auto& box = Show();
  WaitFor([&] { return platform::AccessibleName(Box()) == "Name:"; }, "the name of the box");
  box.LoadInfoOnControl();
  EXPECT_EQ(Box().GetHint(), "(local)");
  ASSERT_TRUE(GetResource().SwitchLanguage(2052));
  box.LoadInfoOnControl();
  EXPECT_EQ(Box().GetHint(), GetResource().CaptionOf("frmLogin", "txtServer")->text);
  EXPECT_EQ(box.Text(), "");
}

TEST_F(UseTextBoxTest, HoldsHostileTexts) {
  auto& box = Show();
  const wxString hostile[] = {wxString::FromUTF8("e\xCC\x81\xCC\x82\xCC\x83"),
                              wxString::FromUTF8("\u202Eabc\u200F\u2066"),
                              wxString::FromUTF8("👨‍👩‍👧🇦🇺"),
                              "<b>&amp;</b>",
                              "&Name %s %n",
                              wxString(L"\xFFFE\xFFFF", 2)};
  for (const wxString& text : hostile) {
    box.SetText(text);
    EXPECT_EQ(box.Text(), text);
    box.SetText("");
    Paste(text);
    EXPECT_EQ(box.Text(), text);
    Press('Z', wxMOD_CONTROL);
    EXPECT_EQ(box.Text(), "");
  }
  box.SetText(wxString("a\0b", 3));
  EXPECT_EQ(box.Text(), wxString(L"a\xFFFD"
                                 L"b"));
  box.SetMaxLength(0);
  box.SetText("");
  wxString large;
  for (int i = 0; i < 70'000; ++i) large += wxString::FromUTF8("é😀 word 123");
  Paste(large.Left(1'000'000));
  // Desktops differ in how much one line can be.
  EXPECT_GE(box.Text().length(), 16'000U);
  EXPECT_TRUE(large.StartsWith(box.Text()));
  box.SetMaxLength(500);
  EXPECT_EQ(CountCharacters(box.Text()), 500U);
}

}  // namespace
}  // namespace mindloft::test
