#include "tests/support/gui/ToolkitMessages.h"

#include <gtest/gtest.h>
#include <wx/debug.h>
#include <wx/log.h>

namespace mindloft::test {
namespace {

/// What the program's own log target would show in a box fails the test.
class FailingLog : public wxLog {
 protected:
  void DoLogRecord(wxLogLevel level, const wxString& message, const wxLogRecordInfo& info) override {
    if (level <= wxLOG_Error) {
      ADD_FAILURE_AT(info.filename ? info.filename : "?", info.line) << "log: " << message.utf8_string();
    }
  }
};

void FailOnAssert(const wxString& file, int line, const wxString& function, const wxString& condition,
                  const wxString& message) {
  ADD_FAILURE_AT(file.utf8_string().c_str(), line)
      << "assertion of the toolkit in " << function.utf8_string() << ": " << condition.utf8_string() << " "
      << message.utf8_string();
}

}  // namespace

void FailOnToolkitMessages() {
  delete wxLog::SetActiveTarget(new FailingLog);
  wxSetAssertHandler(FailOnAssert);
  FailOnDesktopMessages();
}

}  // namespace mindloft::test
