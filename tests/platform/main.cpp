#include <gmock/gmock.h>
#include <wx/app.h>
#include <wx/init.h>

#include "tests/platform/Child.h"
#include "tests/support/gui/ToolkitMessages.h"

namespace mindloft::test {
namespace {

/// Runs the tests, or a child's task, inside the toolkit.
class PlatformTestApp : public wxApp {
 public:
  bool OnInit() override {
    SetExitOnFrameDelete(false);
    FailOnToolkitMessages();
    return true;
  }
  int OnRun() override {
    if (auto status = RunAsChild(argc, argv)) return *status;
    CallAfter([this] {
      result_ = RUN_ALL_TESTS();
      ExitMainLoop();
    });
    wxApp::OnRun();
    return result_;
  }

 private:
  int result_ = 1;
};

}  // namespace
}  // namespace mindloft::test

wxIMPLEMENT_APP_NO_MAIN(mindloft::test::PlatformTestApp);

int main(int argc, char** argv) {
  testing::InitGoogleMock(&argc, argv);
  return wxEntry(argc, argv);
}
