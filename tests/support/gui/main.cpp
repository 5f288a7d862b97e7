#include <gmock/gmock.h>
#include <wx/app.h>
#include <wx/frame.h>
#include <wx/init.h>
#include <wx/log.h>

#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "platform/ui/Toolkit.h"
#include "tests/support/gui/ToolkitMessages.h"

namespace mindloft::test {
namespace {

/// What the program's own log target would show in a box fails the test.
class FailingLog : public wxLog {
 protected:
  void DoLogRecord(wxLogLevel level, const wxString& message, const wxLogRecordInfo& info) override {
    if (level <= wxLOG_Error) {
      ADD_FAILURE_AT(info.filename ? info.filename : "?", info.line) << "log: " << ToUtf8(message);
    }
  }
};

void FailOnAssert(const wxString& file, int line, const wxString& function, const wxString& condition,
                  const wxString& message) {
  ADD_FAILURE_AT(ToUtf8(file).c_str(), line) << "assertion of the toolkit in " << ToUtf8(function) << ": "
                                             << ToUtf8(condition) << " " << ToUtf8(message);
}

/// Runs all tests inside the main loop, so that forms, timers and posted events behave as in the program.
class TestApp : public wxApp {
 public:
  bool OnInit() override {
    SetExitOnFrameDelete(false);
    delete wxLog::SetActiveTarget(new FailingLog);
    wxSetAssertHandler(FailOnAssert);
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
