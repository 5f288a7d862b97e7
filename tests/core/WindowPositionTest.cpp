#include <gmock/gmock.h>
#include <wx/frame.h>

#include "core/modShare.h"
#include "platform/ui/Metrics.h"
#include "tests/support/gui/PrivateServices.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {
namespace {

using platform::RegistryRoot;
constexpr const char* key = "software\\Ordwell\\Mindloft\\Resource\\FormPos\\frmSysAdmin";

class WindowPositionTest : public PrivateServices {
 protected:
  void SetUp() override {
    PrivateServices::SetUp();
    form_ = new wxFrame(nullptr, wxID_ANY, "main", wxDefaultPosition, wxSize(500, 400), wxDEFAULT_FRAME_STYLE,
                        "frmSysAdmin");
  }
  void TearDown() override {
    form_->Destroy();
    Settle();
    PrivateServices::TearDown();
  }
  void Put(const char* name, std::int32_t number) {
    GetRegistry().SetNumber(RegistryRoot::CurrentUser, key, name, number);
  }
  std::int32_t Stored(const char* name) {
    return GetRegistry().GetNumber(RegistryRoot::CurrentUser, key, name);
  }
  /// A rectangle in pixels, stored in twips.
  void PutRectangle(wxRect pixels) {
    Put("Top", Twips(pixels.y));
    Put("Left", Twips(pixels.x));
    Put("Width", Twips(pixels.width));
    Put("Height", Twips(pixels.height));
  }
  std::int32_t Twips(int pixels) const { return platform::PixelsToTwipsX(pixels, form_); }
  wxPoint Centred() const {
    wxSize screen = platform::GetScreenMetrics().screen;
    return wxPoint((screen.x - form_->GetSize().x) / 2, (screen.y - form_->GetSize().y) / 2);
  }

  wxFrame* form_ = nullptr;
};

TEST_F(WindowPositionTest, TheFirstStartCentresTheFormAtItsDesignSize) {
  wxSize design = form_->GetSize();
  LoadFormPos(*form_, false);
  EXPECT_EQ(form_->GetSize(), design);
  EXPECT_EQ(form_->GetPosition(), Centred());
  EXPECT_EQ(Stored("State"), -1);
}

TEST_F(WindowPositionTest, TheFirstStartInFullScreenTakesTheWorkingArea) {
  LoadFormPos(*form_, true);
  auto screen = platform::SystemScreenMetrics();
  EXPECT_EQ(form_->GetRect(),
            wxRect(0, 0, screen.fullScreenWidth, screen.fullScreenHeight + screen.captionHeight));
  // The screen is asked at each call: it may have changed since.
  for (wxSize changed : {wxSize(1000, 700), wxSize(640, 400)}) {
    platform::FakeScreen fake({changed, changed.x, changed.y - 70, 22});
    form_->Move(50, 60);
    FullScreen(*form_);
    EXPECT_EQ(form_->GetRect(), wxRect(0, 0, changed.x, changed.y - 48));
    form_->SetSize(200, 150);
    LoadFormPos(*form_, false);
    EXPECT_EQ(form_->GetPosition(), Centred());
  }
}

TEST_F(WindowPositionTest, StoredRectanglesAreAppliedAsTheyAreUnlessAnyPartIsNegative) {
  struct Case {
    wxRect rectangle;
    bool applied;
  };
  wxSize design = form_->GetSize();
  for (auto [rectangle, applied] :
       {Case{{30, 40, 600, 450}, true}, Case{{0, 0, 2000, 1500}, true}, Case{{5000, 4000, 600, 450}, true},
        Case{{-8, 40, 600, 450}, false}, Case{{30, -1, 600, 450}, false}, Case{{30, 40, -600, 450}, false},
        Case{{30, 40, 600, -450}, false}}) {
    for (int state : {0, 1, 7}) {
      form_->SetSize(wxRect(wxPoint(10, 10), design));
      PutRectangle(rectangle);
      Put("State", state);
      LoadFormPos(*form_, true);
      EXPECT_EQ(form_->GetRect(), applied ? rectangle : wxRect(Centred(), design))
          << rectangle.x << "," << rectangle.y << " state " << state;
    }
  }
}

TEST_F(WindowPositionTest, AStoredStateWithoutARectangleCentres) {
  Put("State", 0);
  Put("Top", 100);
  GetRegistry().SetString(RegistryRoot::CurrentUser, key, "Left", "no number");
  LoadFormPos(*form_, true);
  EXPECT_EQ(form_->GetPosition(), Centred());
}

TEST_F(WindowPositionTest, ANormalFormComesBackWhereItWas) {
  form_->Show();
  form_->SetSize(80, 90, 640, 480);
  Settle();
  wxRect present = form_->GetRect();
  SetFormPos(*form_);
  EXPECT_EQ(Stored("State"), 0);
  EXPECT_EQ(Stored("Left"), Twips(present.x));
  EXPECT_EQ(Stored("Height"), Twips(present.height));
  form_->SetSize(10, 10, 300, 300);
  LoadFormPos(*form_, false);
  WaitFor([&] { return form_->GetRect() == present; }, "the stored rectangle");
}

TEST_F(WindowPositionTest, MaximizedAndMinimizedFormsKeepTheRectangleOfTheLastNormalSave) {
  PutRectangle({30, 40, 600, 450});
  Put("State", 0);
  form_->Show();
  form_->Maximize();
  WaitFor([&] { return form_->IsMaximized(); }, "the maximized window");
  SetFormPos(*form_);
  EXPECT_EQ(Stored("State"), 2);
  EXPECT_EQ(Stored("Left"), Twips(30));
  EXPECT_EQ(Stored("Width"), Twips(600));
  form_->Maximize(false);
  WaitFor([&] { return !form_->IsMaximized(); }, "the normal window");
  LoadFormPos(*form_, false);
  WaitFor([&] { return form_->IsMaximized(); }, "the window as it was closed");

  form_->Iconize();
  WaitFor([&] { return form_->IsIconized(); }, "the minimized window");
  SetFormPos(*form_);
  EXPECT_EQ(Stored("State"), 1);
  EXPECT_EQ(Stored("Left"), Twips(30));
}

}  // namespace
}  // namespace mindloft::test
