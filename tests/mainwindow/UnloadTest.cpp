#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <wx/frame.h>

#include "core/Refresh.h"
#include "platform/ui/MouseWheel.h"
#include "tests/mainwindow/MainWindowTest.h"
#include "tests/support/WatchedRegistry.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {

using testing::ElementsAre;

/// A window that writes down what it sees when it is asked to close.
class Witness : public wxFrame {
 public:
  Witness(std::function<void()> asked, const bool& agrees) : wxFrame(nullptr, wxID_ANY, "witness") {
    Bind(wxEVT_CLOSE_WINDOW, [this, asked = std::move(asked), &agrees](wxCloseEvent& event) {
      asked();
      if (agrees)
        Destroy();
      else
        event.Veto();
    });
  }
};

/// The window's end: wheel hook, other forms, login, position.
class UnloadTest : public MainWindowTest {
 protected:
  void SetUp() override {
    PrivateServices::SetUp();
    registry_ = std::make_shared<WatchedRegistry>(registry_, "State", [this](WatchedRegistry::Access access) {
      if (access == WatchedRegistry::Access::Change) Note("position");
    });
    RestartServices();
    MakeDirectory();
  }
  void Note(const std::string& step) {
    steps_.push_back(step + (platform::IsHooked(form_) ? " hooked" : "") +
                     (GetConnection()->IsLoggedIn() ? " logged in" : ""));
  }
  std::vector<std::string> steps_;
};

TEST_F(UnloadTest, GoesStepByStepAndARefusalTakesTheFirstOneBack) {
  Open();
  EXPECT_TRUE(platform::IsHooked(form_));
  bool agrees = false;
  new Witness([this] { Note("first"); }, agrees);
  new Witness([this] { Note("last"); }, agrees);
  EXPECT_FALSE(CloseWindow());
  EXPECT_THAT(steps_, ElementsAre("last logged in"))
      << "the last form is asked first, and its refusal is enough";
  EXPECT_TRUE(platform::IsHooked(form_));

  // The window goes on as before.
  Select({"59300", "59303"});
  const auto user = Server().Users()->Add();
  user->SetName("newcomer");
  user->Update();
  GetRefresh()->Notify(ObjectKind::User, ObjectAction::Created, user);
  EXPECT_EQ(Explorer().ListCount(), 7);

  steps_.clear();
  agrees = true;
  ASSERT_TRUE(CloseWindow());
  EXPECT_THAT(steps_, ElementsAre("last logged in", "first logged in", "position"));
}

TEST_F(UnloadTest, WhenTheSystemEndsARefusalIsNotHeard) {
  Open();
  const bool agrees = false;
  auto* other = new Witness([this] { Note("other"); }, agrees);
  form_->Close(true);
  form_ = nullptr;
  Settle();
  EXPECT_FALSE(GetConnection()->IsLoggedIn());
  EXPECT_THAT(steps_, ElementsAre("other logged in", "position"));
  other->Destroy();
  Settle();
}

}  // namespace mindloft::test
