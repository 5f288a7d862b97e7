#include "app/frmHidden.h"

#include <wx/display.h>

#include "app/modPublic.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "core/ErrorHandling.h"
#include "core/forms/Images.h"
#include "mainwindow/CommandLineState.h"
#include "mainwindow/FirstImages.h"

namespace mindloft {

frmHidden::frmHidden(StartServices services) : services_(std::move(services)) {}

void frmHidden::Form_Load(const wxString& commandLine) try {
  SavedCommandLine() = commandLine;
  if (instance_.IsAnotherRunning()) {
    LinkAndSendMessage(SavedCommandLine());
    return;
  }
  Listen();
  // Not sooner: on Windows the display brings a window, which would keep a second instance's hand-over
  // waiting.
  BeginDrawingImages(FirstImages(), wxDisplay().GetScaleFactor());
  GetUtility().Log("start: version " MINDLOFT_VERSION);
  TellLanguageProblem();
  auto services = services_;
  services.showMainWindow = [this] { ShowMainWindow(); };
  Main(commandLine, services);
} catch (...) {
  ShowError("frmHidden", "Form_Load");
}

void frmHidden::TellLanguageProblem() {
  constexpr int kLanguageIsDamaged = 61440;
  const auto& problem = GetResource().LastProblem();
  if (problem.empty()) return;
  GetUtility().Log("start: a language file cannot be used: " + ToUtf8(problem));
  GetMessenger().ShowMessage(kLanguageIsDamaged, {problem});
}

void frmHidden::Listen() {
  const bool listening = instance_.Serve([this](const std::string& text) {
    bool cancel = false;
    Form_LinkExecute(ToWx(text), cancel);
  });
  // A console that nobody can hand over to is still a console.
  if (!listening) GetUtility().Log("start: a second instance cannot reach this one");
}

void frmHidden::ShowMainWindow() {
  services_.showMainWindow();
  mainWindowShown_ = true;
  GetUtility().Log("start: the main window is shown");
  // Also where nobody logs in automatically, and after all that the user waits for.
  GetResource().LoginPassword().TakeOver();
  if (handOverWaits_) services_.handOver();
  handOverWaits_ = false;
}

void frmHidden::Form_LinkExecute(const wxString& text, bool& cancel) try {
  cancel = false;
  SavedCommandLine() = text;
  GetUtility().Log("start: a second instance handed over \"" + ToUtf8(text.Left(200)) + "\"");
  if (mainWindowShown_) {
    services_.handOver();
  } else {
    handOverWaits_ = true;
    services_.raiseLogin();
  }
} catch (...) {
  ShowError("frmHidden", "Form_LinkExecute");
}

void frmHidden::LinkAndSendMessage(const wxString& text) try {
  instance_.SendToFirst(ToUtf8(text));
} catch (...) {
  ReportOnly("frmHidden", "LinkAndSendMessage");
}

}  // namespace mindloft
