#include <wx/app.h>
#include <wx/toplevel.h>

#include "app/FirstWindow.h"
#include "backend/errors/Error.h"
#include "core/modShare.h"
#include "tests/app/StartFixture.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {
namespace {

class FirstWindowTest : public StartFixture {
 protected:
  void SetUp() override {
    StartFixture::SetUp();
    MakeDirectory();
    SetApplication(std::make_unique<Corvane::Application>(TracingServices().directories));
  }
  void TearDown() override {
    Shutdown();
    Settle();
    wxTheApp->SetTopWindow(nullptr);
    StartFixture::TearDown();
  }
  static wxWindow* MainWindow() { return wxWindow::FindWindowByName("frmSysAdmin"); }
};

TEST_F(FirstWindowTest, WhatWasPreparedIsShownOnceSomebodyHasLoggedIn) {
  FirstWindow first;
  first.Prepare();
  auto* prepared = MainWindow();
  ASSERT_TRUE(prepared);
  EXPECT_FALSE(prepared->IsShown());
  ASSERT_TRUE(GetConnection()->Login(kUser, kPassword));
  first.Show();
  EXPECT_EQ(wxTheApp->GetTopWindow(), prepared);
  WaitFor([&] { return prepared->IsShownOnScreen(); }, "the main window");
}

TEST_F(FirstWindowTest, NothingIsLeftOfAWindowThatIsNotShown) {
  {
    FirstWindow first;
    first.Prepare();
    first.Drop();
    EXPECT_FALSE(MainWindow());
    first.Prepare();
    EXPECT_THROW(first.Show(), Error) << "nobody is logged in";
    EXPECT_FALSE(MainWindow());
    first.Prepare();
  }
  EXPECT_FALSE(MainWindow());
}

}  // namespace
}  // namespace mindloft::test
