#include <gmock/gmock.h>

#include "controls/richtext/CaretPlace.h"
#include "controls/richtext/TXControl.h"
#include "controls/richtext/TextControl.h"
#include "tests/controls/bag/RoundTrip.h"
#include "tests/controls/richtext/RichTextFixture.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

class RichTextControlTest : public RichTextFixture {};

TEST_F(RichTextControlTest, KeepsItsProperties) {
  const Texts both{
      {"Text", ""},        {"Enable", "True"},           {"ViewMode", "0"},          {"GridLines", "True"},
      {"Locked", "False"}, {"StatueBarVisible", "True"}, {"RulerBarVisible", "True"}};
  Texts tx = both;
  tx.emplace_back("ButtonBarVisible", "True");
  ExpectDefaults<TXControl>("TXControl", tx);
  ExpectDefaults<TextControl>("TextControl", both);
  ExpectRoundTrips<TXControl>("TXControl", {"1"});
  ExpectRoundTrips<TextControl>("TextControl", {"1"});
  ExpectRefusals("TXControl", "Locked");
  ExpectRefusals("TextControl", "GridLines");
  EXPECT_THAT(RefusalOf("TXControl", "<ViewMode>7</ViewMode>"), HasSubstr("ViewMode"));
}

TEST_F(RichTextControlTest, BarsTakeTheirHeightsAndTheEditorTheRest) {
  auto& control = Show(new TXControl(frame_));
  const auto rect = [&](const char* name) { return user_->Find<wxWindow>(name).GetRect(); };
  const auto expectStacked = [&](const std::vector<const char*>& shown) {
    int top = 0;
    for (const char* name : shown) {
      EXPECT_EQ(rect(name).y, top) << name;
      EXPECT_EQ(rect(name).width, control.GetClientSize().x) << name;
      top += rect(name).height;
    }
    EXPECT_EQ(top, control.GetClientSize().y);
  };
  expectStacked({"TXButtonBar", "TXRuler", "TXTextControl", "TXStatusBar1"});
  control.SetRulerBarVisible(false);
  EXPECT_FALSE(user_->IsShown("TXRuler"));
  expectStacked({"TXButtonBar", "TXTextControl", "TXStatusBar1"});
  control.SetButtonBarVisible(false);
  control.SetStatueBarVisible(false);
  expectStacked({"TXTextControl"});
  control.SetRulerBarVisible(true);
  control.SetButtonBarVisible(true);
  control.SetStatueBarVisible(true);
  expectStacked({"TXButtonBar", "TXRuler", "TXTextControl", "TXStatusBar1"});
  const int oneLine = rect("TXButtonBar").height;
  frame_->SetClientSize(400, 500);
  WaitFor([&] { return control.GetClientSize().x == 400; }, "the narrow control");
  EXPECT_GT(rect("TXButtonBar").height, oneLine) << "the groups stand in two lines";
  expectStacked({"TXButtonBar", "TXRuler", "TXTextControl", "TXStatusBar1"});
}

TEST_F(RichTextControlTest, TellsItsEvents) {
  auto& control = Show(new TextControl(frame_));
  int pressed = 0;
  control.MouseDown = [&](int button, int, int, int) { pressed += button; };
  Type("ab");
  EXPECT_THAT(Events(), ElementsAre("Change", "Change", "PosChange"));
  control.SetSelStart(1);
  EXPECT_THAT(Events(), ElementsAre("PosChange"));
  control.SetSellength(1);
  EXPECT_THAT(Events(), ElementsAre("PosChange"));
  control.SetText("new");
  EXPECT_THAT(Events(), Contains("Change"));
  wxKeyEvent key(wxEVT_KEY_UP);
  key.m_keyCode = WXK_DOWN;
  key.SetShiftDown(true);
  control.Editor().HandleWindowEvent(key);
  EXPECT_THAT(Events(), ElementsAre("KeyUp 40,1"));
  const auto click = [&](wxWindow& window, wxEventType type) {
    wxMouseEvent event(type);
    event.SetEventObject(&window);
    return window.HandleWindowEvent(event);
  };
  click(control.Editor(), wxEVT_MIDDLE_DOWN);
  click(control.Editor(), wxEVT_MIDDLE_UP);
  EXPECT_EQ(pressed, 4);
  EXPECT_THAT(Events(), Contains("MouseUp 4"));
  int below = 0;
  frame_->Bind(wxEVT_LEFT_DOWN, [&](wxMouseEvent&) { ++below; });
  control.Bind(wxEVT_LEFT_DOWN, [&](wxMouseEvent&) { ++below; });
  EXPECT_TRUE(click(user_->Find<wxWindow>("TXStatusBar1"), wxEVT_LEFT_DOWN)) << "swallowed";
  EXPECT_TRUE(click(user_->Find<wxWindow>("lblZoom"), wxEVT_RIGHT_DOWN)) << "swallowed";
  EXPECT_EQ(below, 0);
  EXPECT_THAT(Events(), ElementsAre());
}

TEST_F(RichTextControlTest, HandlersMayDestroyTheControl) {
  auto& control = Show(new TXControl(frame_));
  control.KeyUp = [&](int&, int) { control.Destroy(); };
  wxKeyEvent key(wxEVT_KEY_UP);
  key.m_keyCode = 'A';
  control.Editor().HandleWindowEvent(key);
  Settle();
}

TEST_F(RichTextControlTest, SelectsPlaces) {
  auto& control = Show(new TextControl(frame_));
  control.SetText("one\ntwo\nthree");
  EXPECT_EQ(control.SelStart(), 0);
  control.SetSelStart(4);
  control.SetSellength(3);
  EXPECT_EQ(control.SelText(), "two");
  EXPECT_EQ(control.SelStart(), 4);
  EXPECT_EQ(control.Sellength(), 3);
  control.SetSelText("2");
  EXPECT_EQ(Text(), "one\n2\nthree");
  control.SetSelStart(1000);
  EXPECT_EQ(control.SelStart(), 11);
  control.SetSellength(5);
  EXPECT_EQ(control.Sellength(), 0);
  control.SetSelStart(-5);
  control.SetSellength(1000);
  EXPECT_EQ(control.SelText(), "one\n2\nthree");
  control.Undo();
  EXPECT_EQ(Text(), "one\ntwo\nthree");
}

TEST_F(RichTextControlTest, LockedAndDisabledTextsStay) {
  auto& control = Show(new TXControl(frame_));
  control.SetText("stays");
  control.SelectAll();
  EXPECT_EQ(control.Sellength(), 5);
  for (const bool locked : {true, false}) {
    control.SetLocked(locked);
    control.SetEnable(locked);
    Press('B', wxMOD_CONTROL);
    control.Clip(kClipCut);
    control.Clip(kClipDelete);
    control.FontDialog();
    control.NewTable();
    control.FindReplace();
    control.Undo();
    if (locked) Type("x");
    EXPECT_EQ(Text(), "stays");
    EXPECT_THAT(Stored(), Not(HasSubstr("fontweight=\"700\"")));
  }
}

TEST_F(RichTextControlTest, EmptyCommandsDoNothing) {
  auto& control = Show(new TXControl(frame_));
  control.SetText("text");
  const std::string before = Stored();
  Events();
  control.InsertTable();
  control.DeleteTable();
  control.InsertImage();
  control.InsertMyImage();
  control.AppendText();
  control.HeaderFoot();
  control.ForeColordialog();
  control.TextColor();
  control.Clip(0);
  control.Clip(99);
  EXPECT_EQ(Stored(), before);
  EXPECT_THAT(Events(), ElementsAre());
}

TEST_F(RichTextControlTest, StatusBarTellsWhereTheCaretIs) {
  auto& control = Show(new TXControl(frame_));
  control.SetText("one\ntwo");
  control.SetSelStart(6);
  Settle();
  EXPECT_EQ(user_->Read("lblPlace"), "Line 2");
  EXPECT_EQ(user_->Read("lblColumn"), "Column 3");
  EXPECT_EQ(user_->Read("lblZoom"), "100 %");
  EXPECT_EQ(user_->Read("lblInsert"), "Insert");
  Press(WXK_INSERT);
  EXPECT_EQ(user_->Read("lblInsert"), "Overwrite");
  Type("X");
  EXPECT_EQ(Text(), "one\ntwX");
  Type("Y");
  EXPECT_EQ(Text(), "one\ntwXY");
  control.SetSelStart(3);
  Type("!");
  EXPECT_EQ(Text(), "one!\ntwXY") << "the end of a paragraph is not overwritten";
  for (const auto& [wanted, shown] : {std::pair{150, "150 %"}, {1, "10 %"}, {1000, "400 %"}}) {
    control.Zoom(static_cast<std::int16_t>(wanted));
    EXPECT_EQ(user_->Read("lblZoom"), shown);
  }
  control.Zoom(100);
  control.SetViewMode(kPageView);
  EXPECT_EQ(user_->Read("lblPlace"), "Page 1");
  wxString many;
  for (int i = 0; i < 100; ++i) many += "line\n";
  control.SetText(many);
  control.SetSelStart(495);
  Settle();
  EXPECT_THAT(user_->Read("lblPlace").utf8_string(), testing::AnyOf("Page 2", "Page 3"));
}

TEST_F(RichTextControlTest, PageViewBreaksLinesAsThePageDoes) {
  auto& control = Show(new TXControl(frame_));
  wxString line;
  for (int i = 0; i < 60; ++i) line += "word ";
  control.SetText(line);
  Settle();
  const auto lines = [&] {
    control.Editor().SetInsertionPointEnd();
    return PlaceOfCaret(control.Editor(), control.Page()).line;
  };
  const long wide = lines();
  PageSettings page;
  page.paperWidth = 1000;
  control.SetPage(page);
  EXPECT_EQ(lines(), wide);
  control.SetViewMode(kPageView);
  const long narrow = lines();
  EXPECT_GT(narrow, wide);
  page.paperWidth = 700;
  control.SetPage(page);
  EXPECT_GT(lines(), narrow);
  control.SetViewMode(kNormalView);
  EXPECT_EQ(lines(), wide);
}

}  // namespace
}  // namespace mindloft::test
