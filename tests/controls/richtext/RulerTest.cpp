#include <gmock/gmock.h>

#include "controls/richtext/Ruler.h"
#include "controls/richtext/TXControl.h"
#include "tests/controls/richtext/RichTextFixture.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

TEST(RulerModelTest, KeepsMarksWherePeopleCanReadBetweenThem) {
  RulerModel model;
  model.SetWidth(1000);
  model.SetIndents(50, 100, 200);
  model.Move(RulerMark::FirstLine, 0, -30);
  EXPECT_EQ(model.FirstLine(), 0);
  model.Move(RulerMark::FirstLine, 0, 5000);
  EXPECT_EQ(model.FirstLine(), 700);
  model.SetIndents(50, 100, 200);
  model.Move(RulerMark::Left, 0, 300);
  EXPECT_EQ(model.Left(), 300);
  EXPECT_EQ(model.FirstLine(), 250) << "goes along";
  model.Move(RulerMark::Left, 0, 20);
  EXPECT_EQ(model.FirstLine(), 0);
  model.Move(RulerMark::Right, 0, 0);
  EXPECT_EQ(model.Right(), 880);
  model.Move(RulerMark::Right, 0, 2000);
  EXPECT_EQ(model.Right(), 0);
  model.SetTabs({300, 100});
  EXPECT_THAT(model.Tabs(), ElementsAre(100, 300));
  EXPECT_EQ(model.AddTab(200), 1);
  EXPECT_EQ(model.AddTab(200), 1);
  model.Move(RulerMark::Tab, 1, 900);
  EXPECT_THAT(model.Tabs(), ElementsAre(100, 299, 300));
  model.Move(RulerMark::Tab, 7, 1);
  model.RemoveTab(1);
  EXPECT_THAT(model.Tabs(), ElementsAre(100, 300));
  model.SetWidth(-5);
  model.Move(RulerMark::Right, 0, 3);
  model.Move(RulerMark::Left, 0, 3);
  EXPECT_EQ(model.Left(), 0);
}

TEST(RulerModelTest, NumbersStandAsFarApartAsTheyNeed) {
  EXPECT_EQ(ScaleOf(false, 0.378).step, 100);
  EXPECT_EQ(ScaleOf(true, 0.378).step, 254);
  EXPECT_EQ(ScaleOf(false, 0.1).step, 500);
  EXPECT_EQ(ScaleOf(false, 0.038).step, 1000);
  EXPECT_GT(ScaleOf(true, 0.001).step, 24'000);
}

class RulerTest : public RichTextFixture {
 protected:
  void SetUp() override {
    RichTextFixture::SetUp();
    control_ = &Show(new TXControl(frame_));
    ruler_ = &user_->Find<Ruler>("TXRuler");
    control_->SetText("one\ntwo");
    Settle();
  }
  void Send(wxEventType type, int x, int y) {
    wxMouseEvent event(type);
    event.SetEventObject(ruler_);
    event.SetPosition({x, y});
    if (type == wxEVT_MOTION) event.m_leftDown = true;
    ruler_->HandleWindowEvent(event);
  }
  void Drag(int from, int to, int y, int endY) {
    Send(wxEVT_LEFT_DOWN, ruler_->PixelOf(from), y);
    Send(wxEVT_MOTION, ruler_->PixelOf(to), endY);
    Send(wxEVT_LEFT_UP, ruler_->PixelOf(to), endY);
    Settle();
  }

  Ruler* ruler_ = nullptr;
};

TEST_F(RulerTest, DragsAreSteps) {
  const int top = 2;
  const int bottom = ruler_->GetClientSize().y - 3;
  const int width = ruler_->Model().Width();
  std::string before = Stored();
  Drag(0, 200, top, top);
  EXPECT_NEAR(ruler_->Model().FirstLine(), 200, 3);
  EXPECT_EQ(ruler_->Model().Left(), 0);
  ExpectUndoable(before);
  before = Stored();
  Drag(0, 100, bottom, bottom);
  EXPECT_NEAR(ruler_->Model().Left(), 100, 3);
  EXPECT_NEAR(ruler_->Model().FirstLine(), 300, 5);
  ExpectUndoable(before);
  before = Stored();
  Drag(width, width - 150, bottom, bottom);
  EXPECT_NEAR(ruler_->Model().Right(), 150, 3);
  ExpectUndoable(before);
  before = Stored();
  Drag(500, 600, bottom, bottom);
  ASSERT_EQ(ruler_->Model().Tabs().size(), 1u);
  EXPECT_NEAR(ruler_->Model().Tabs()[0], 600, 3);
  EXPECT_THAT(Stored(), HasSubstr("tabs="));
  ExpectUndoable(before);
  before = Stored();
  Drag(600, 700, bottom, 10 * bottom);
  EXPECT_TRUE(ruler_->Model().Tabs().empty());
  ExpectUndoable(before);
  control_->SetSelStart(5);
  Settle();
  EXPECT_EQ(ruler_->Model().Right(), 0) << "the other paragraph has its own";
}

TEST_F(RulerTest, EscGivesADragUpAndALockedTextHasNone) {
  const std::string before = Stored();
  Send(wxEVT_LEFT_DOWN, ruler_->PixelOf(0), 2);
  Send(wxEVT_MOTION, ruler_->PixelOf(300), 2);
  EXPECT_NEAR(ruler_->Model().FirstLine(), 300, 3);
  Press(WXK_ESCAPE);
  Send(wxEVT_LEFT_UP, ruler_->PixelOf(300), 2);
  EXPECT_EQ(ruler_->Model().FirstLine(), 0);
  EXPECT_EQ(Stored(), before);
  control_->SetLocked(true);
  Drag(0, 200, 2, 2);
  EXPECT_EQ(Stored(), before);
}

}  // namespace
}  // namespace mindloft::test
