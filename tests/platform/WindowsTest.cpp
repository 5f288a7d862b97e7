#include <gmock/gmock.h>
#include <wx/button.h>
#include <wx/frame.h>
#include <wx/listctrl.h>
#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/textctrl.h>
#include <wx/uiaction.h>
#include <wx/utils.h>

#include <memory>

#include "platform/ui/CommonControls.h"
#include "platform/ui/Keyboard.h"
#include "platform/ui/MouseWheel.h"
#include "platform/ui/ScrollHelpers.h"
#include "platform/ui/WindowHelpers.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {
namespace {

using namespace platform;

/// A virtual list as the explorer's.
class Rows : public wxListCtrl {
 public:
  Rows(wxWindow* parent, long count) : wxListCtrl(parent, wxID_ANY, {}, {}, wxLC_REPORT | wxLC_VIRTUAL) {
    AppendColumn("Name", wxLIST_FORMAT_LEFT, 200);
    SetItemCount(count);
  }
  wxString OnGetItemText(long item, long) const override { return wxString::Format("row %ld", item); }
};

class WindowsTest : public testing::Test {
 protected:
  WindowsTest() {
    static int number = 0;
    title_ = wxString::Format("Test %lu-%d Mindloft", wxGetProcessId(), ++number);
    frame_ = new wxFrame(nullptr, wxID_ANY, title_, wxDefaultPosition, wxSize(400, 400));
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    text_ = new wxTextCtrl(frame_, wxID_ANY, "Text inside " + title_);
    list_ = new Rows(frame_, 1000);
    sizer->Add(text_, 0, wxEXPAND);
    sizer->Add(list_, 1, wxEXPAND);
    frame_->SetSizer(sizer);
    frame_->Show();
    WaitFor([this] { return frame_->IsShownOnScreen() && frame_->IsActive() && HaveScrollBar(list_); },
            "the window");
  }
  ~WindowsTest() override {
    if (frame_) frame_->Destroy();
    Settle();
  }

  /// One turn of the wheel as the toolkit reports it to the control that has the focus.
  bool Turn(wxWindow* focus, int rotation) {
    wxMouseEvent event(wxEVT_MOUSEWHEEL);
    event.SetEventObject(focus);
    event.m_wheelRotation = rotation;
    event.m_wheelDelta = 120;
    event.m_linesPerAction = 3;
    return focus->HandleWindowEvent(event);
  }

  void PointAt(wxWindow* window) {
    auto place = window->ClientToScreen(wxPoint(30, window->GetClientSize().y / 2));
    WaitFor(
        [&] {
          wxUIActionSimulator().MouseMove(place);
          Settle();
          return wxGetMousePosition() == place;
        },
        "the pointer");
  }

  wxString title_;
  wxFrame* frame_;
  wxTextCtrl* text_;
  wxListCtrl* list_;
};

TEST_F(WindowsTest, FindsWindowsByTitleAndClass) {
  const auto frameClass = ClassNameOf(HandleOf(frame_));
  ASSERT_FALSE(frameClass.empty());
  auto count = [&](const wxString& title, const wxString& className) {
    std::vector<WindowHandle> found{1};
    auto number = FindWindowLike(found, 0, title, className);
    EXPECT_EQ(found.size(), static_cast<std::size_t>(number) + 1) << "found windows are appended";
    return number;
  };
  EXPECT_EQ(count(title_, frameClass), 1);
  EXPECT_EQ(count("*" + title_.Mid(5), frameClass), 1);
  EXPECT_EQ(count(title_.Left(4) + "?" + title_.Mid(5), "*"), 1);
  EXPECT_EQ(count("*" + title_ + "x", "*"), 0);
  EXPECT_EQ(count(title_, "no such class"), 0);
  EXPECT_EQ(count(title_.Lower(), frameClass), 0);
  std::vector<WindowHandle> below;
  EXPECT_GT(FindWindowLike(below, HandleOf(frame_), "*", "*"), 2);
  EXPECT_EQ(below.back(), HandleOf(frame_)) << "children come before their parent";
}

TEST_F(WindowsTest, RestoresAndActivatesItsOwnWindow) {
  auto* other = new wxFrame(nullptr, wxID_ANY, "another program's", wxPoint(100, 100), wxSize(200, 200));
  auto* hidden = new wxFrame(nullptr, wxID_ANY, title_, wxPoint(100, 100), wxSize(200, 200));
  other->Show();
  WaitFor([&] { return other->IsActive(); }, "the other window");
  frame_->Iconize();
  WaitFor([&] { return frame_->IsIconized(); }, "the minimised window");
  ActiveMindloft("", "*");
  Settle();
  EXPECT_TRUE(frame_->IsIconized());
  ActiveMindloft(title_.Mid(5), ClassNameOf(HandleOf(frame_)));
  WaitFor([&] { return !frame_->IsIconized() && frame_->IsActive(); }, "the restored window");
  EXPECT_FALSE(hidden->IsShown());
  other->Destroy();
  hidden->Destroy();
}

TEST_F(WindowsTest, WheelScrollsTheListUnderThePointerByLines) {
  Hook2(frame_);
  text_->SetFocus();
  PointAt(list_);
  EXPECT_EQ(list_->GetTopItem(), 0);
  for (int i = 1; i <= 3; ++i) {
    EXPECT_TRUE(Turn(text_, -120));
    EXPECT_EQ(list_->GetTopItem(), i);
  }
  EXPECT_TRUE(Turn(text_, 120));
  EXPECT_EQ(list_->GetTopItem(), 2);
  EXPECT_TRUE(Turn(text_, -60));
  EXPECT_EQ(list_->GetTopItem(), 2) << "half a notch";
  Turn(text_, -60);
  EXPECT_EQ(list_->GetTopItem(), 3);
  for (int i = 0; i < 9; ++i) Turn(text_, 120);
  EXPECT_EQ(list_->GetTopItem(), 0) << "and no further";
  // Elsewhere, and without a scroll bar, the wheel does what it always does.
  PointAt(text_);
  Turn(text_, -120);
  EXPECT_EQ(list_->GetTopItem(), 0);
  list_->SetItemCount(1);
  list_->Refresh();
  WaitFor([this] { return !HaveScrollBar(list_); }, "the scroll bar to go");
  Unhook2(frame_);
}

TEST_F(WindowsTest, HookIsBalancedAndGoesWithItsWindow) {
  Unhook2(frame_);
  Hook2(frame_);
  Hook2(frame_);
  Unhook2(frame_);
  EXPECT_TRUE(IsHooked(frame_));
  Unhook2(frame_);
  EXPECT_FALSE(IsHooked(frame_));
  PointAt(list_);
  Turn(text_, -120);
  EXPECT_EQ(list_->GetTopItem(), 0) << "no hook is left";
  Hook2(frame_);
  const auto* gone = std::exchange(frame_, nullptr);
  const_cast<wxFrame*>(gone)->Destroy();
  WaitFor([&] { return !IsHooked(gone); }, "the hook to go");
}

TEST_F(WindowsTest, ScrollsToPositionsAndFindsChildren) {
  ScrollToLine(list_, 7);
  EXPECT_EQ(list_->GetTopItem(), 7);
  ScrollToLine(list_, -2);
  EXPECT_EQ(list_->GetTopItem(), 5);
  ScrollToPos(list_, 20);
  EXPECT_EQ(list_->GetTopItem(), 20);
  ScrollToPos(list_, -1);
  EXPECT_EQ(list_->GetTopItem(), 0);
  EXPECT_TRUE(HasScrollBar(list_));
  EXPECT_FALSE(HasScrollBar(nullptr));
  EXPECT_EQ(GetWndByType(HandleOf(frame_), ClassNameOf(HandleOf(list_))), HandleOf(list_));
  EXPECT_EQ(GetWndByType(HandleOf(frame_), "AfxWnd42Afx"), 0u);
}

TEST(Colours, AreTranslatedAndBlended) {
  EXPECT_EQ(TranslateColor(0x00332211), wxColour(0x11, 0x22, 0x33));
  EXPECT_EQ(TranslateColor(0x8000000F), wxSystemSettings::GetColour(wxSYS_COLOUR_BTNFACE));
  EXPECT_TRUE(TranslateColor(0x800000FF).IsOk());
  EXPECT_EQ(BlendColor(*wxWHITE, *wxBLACK, 50), wxColour(128, 128, 128));
  EXPECT_EQ(BlendColor(*wxRED, *wxBLUE, 100), *wxRED);
  EXPECT_EQ(BlendColor(*wxRED, *wxBLUE, -5), *wxBLUE);
}

TEST(Keyboard, TellsTheShiftKeyAsItIsHeld) {
  EXPECT_FALSE(IsShiftDown());
  wxUIActionSimulator keyboard;
  keyboard.KeyDown(WXK_SHIFT);
  WaitFor(&IsShiftDown, "the Shift key");
  {
    FakeShiftKey released(false);
    EXPECT_FALSE(IsShiftDown());
  }
  keyboard.KeyUp(WXK_SHIFT);
  WaitFor([] { return !IsShiftDown(); }, "the Shift key's release");
}

TEST(CommonControls, AreRegistered) {
  EXPECT_TRUE(InitExtendedComboBoxes());
  EXPECT_TRUE(UseSystemControls());
}

TEST(MessageParameters, AreSplit) {
  EXPECT_EQ((LOWORD)(0xFFF80004u), 4);
  EXPECT_EQ((HIWORD)(0xFFF80004u), 0xFFF8);
}

}  // namespace
}  // namespace mindloft::test
