#pragma once

#include <wx/string.h>

#include <functional>

#include "app/StartServices.h"
#include "platform/ui/SingleInstance.h"

namespace mindloft {

/// The process entry. It hands over to an instance that runs already, or logs in and shows the main window. A
/// form in name only: nothing of it is ever visible.
class frmHidden {
 public:
  /// Takes part in the choice of the one instance from here on.
  explicit frmHidden(StartServices services);
  frmHidden(const frmHidden&) = delete;
  frmHidden& operator=(const frmHidden&) = delete;

  /// Hands the command line over when another instance runs, else starts the console with it.
  void Form_Load(const wxString& commandLine);
  /// What a second instance sends: kept as the saved command line, and the main window takes it over, at once
  /// or as soon as there is one. Never cancels.
  void Form_LinkExecute(const wxString& text, bool& cancel);
  /// Sends the text to the running instance. A failure is ignored: a second instance shows nothing.
  void LinkAndSendMessage(const wxString& text);

 private:
  void Listen();
  /// Once, at the start: English stands in for a language file that is damaged.
  static void TellLanguageProblem();
  void ShowMainWindow();

  StartServices services_;
  platform::SingleInstance instance_;
  bool mainWindowShown_ = false;
  bool handOverWaits_ = false;
};

}  // namespace mindloft
