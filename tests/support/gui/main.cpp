#include <gmock/gmock.h>
#include <wx/app.h>
#include <wx/frame.h>
#include <wx/init.h>

#include "backend/tessaline/Services.h"
#include "platform/ui/Toolkit.h"
#include "tests/support/gui/ToolkitMessages.h"

namespace mindloft::test {
namespace {

/// Runs all tests inside the main loop, so that forms, timers and posted events behave as in the program.
class TestApp : public wxApp {
 public:
  bool OnInit() override {
    SetExitOnFrameDelete(false);
    FailOnToolkitMessages();
    platform::MendToolkit();
    CallAfter([this] {
      result_ = RUN_ALL_TESTS();
      ResetServices();
      ExitMainLoop();
    });
    return true;
  }
  int OnRun() override {
    wxApp::OnRun();
    return result_;
  }
  bool OnExceptionInMainLoop() override {
    Report();
    return true;
  }
  void OnUnhandledException() override { Report(); }
  wxLayoutDirection GetLayoutDirection() const override { return wxLayout_LeftToRight; }

 private:
  static void Report() {
    try {
      throw;
    } catch (const std::exception& error) {
      ADD_FAILURE() << "an exception reached the toolkit: " << error.what();
    } catch (...) {
      ADD_FAILURE() << "an exception of an unknown type reached the toolkit";
    }
  }

  int result_ = 1;
};

}  // namespace
}  // namespace mindloft::test

wxIMPLEMENT_APP_NO_MAIN(mindloft::test::TestApp);

int main(int argc, char** argv) {
  testing::InitGoogleMock(&argc, argv);
  return wxEntry(argc, argv);
}
