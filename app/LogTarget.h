#pragma once

#include <wx/log.h>

namespace mindloft {

/// Leads the toolkit's own complaints into the log file; without it they would be raw texts in message boxes.
class LogTarget : public wxLog {
 protected:
  void DoLogTextAtLevel(wxLogLevel level, const wxString& text) override;
};

}  // namespace mindloft
