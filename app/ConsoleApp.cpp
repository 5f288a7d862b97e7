#include "app/ConsoleApp.h"

#include <wx/dcmemory.h>
#include <wx/image.h>
#include <wx/msgout.h>

#include <cstdlib>

#include "app/EarlyLogin.h"
#include "app/LogTarget.h"
#include "app/frmHidden.h"
#include "app/modPublic.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "core/ErrorHandling.h"
#include "core/LanguageImport.h"
#include "core/forms/Form.h"
#include "mainwindow/ApplicationServices.h"
#include "platform/Heap.h"
#include "platform/Paths.h"
#include "platform/Terminal.h"
#include "platform/ui/Fonts.h"
#include "platform/ui/Renderer.h"
#include "platform/ui/WindowHelpers.h"

namespace mindloft {
namespace {

constexpr int kApplicationTitle = 61200;
constexpr int kHelpText = 61240;
constexpr int kVersionText = 61241;
constexpr int kDirectoryIsMissing = 61242;

std::vector<wxString> Arguments(int argc, wxChar** argv) {
  std::vector<wxString> arguments;
  for (int i = 1; i < argc; ++i) arguments.emplace_back(argv[i]);
  return arguments;
}

/// To the terminal, or to a message box where the program has none.
void Print(const wxString& text) {
  if (!platform::WriteToStandardOutput(ToUtf8(text) + "\n")) wxMessageOutputBest().Output(text);
}

}  // namespace

ConsoleApp::ConsoleApp() {
  SetAppName("mindloft-console");
  SetVendorName("Ordwell");
}

ConsoleApp::~ConsoleApp() = default;

bool ConsoleApp::Initialize(int& argc, wxChar** argv) try {
  options_ = CommandLineOptions::Parse(Arguments(argc, argv));
  // Before the toolkit asks for a display, which these do not need.
  if (options_.help || options_.version) {
    auto& resource = GetResource();
    Print(options_.help ? resource.GetString(kHelpText)
                        : resource.GetFormatString(kVersionText, {MINDLOFT_VERSION}));
    std::exit(EXIT_SUCCESS);
  }
  if (!options_.directoryIsMissing) {
    if (options_.directoryFile.empty()) options_.directoryFile = platform::DefaultDirectoryFile();
    platform::GrowHeapInLargeSteps();
    // Both are wanted next, the fonts a moment earlier.
    platform::BeginLoadingFonts();
    early_ = std::make_unique<EarlyLogin>(options_.directoryFile);
  }
  return wxApp::Initialize(argc, argv);
} catch (...) {
  ReportOnly("ConsoleApp", "Initialize");
  return false;
}

bool ConsoleApp::OnInit() try {
  delete wxLog::SetActiveTarget(new LogTarget);
  // A device context makes the toolkit read its style and fonts, which goes beside the early login.
  const wxMemoryDC styleWanted;
  wxImage::AddHandler(new wxPNGHandler);
  const auto showName = [this] { SetAppDisplayName(GetResource().GetString(kApplicationTitle)); };
  showName();
  language_ = GetRefresh()->OnNotifyLanguage(showName);
  platform::DrawPartsAsShapes();
  SetHelpAction(ShowHelp);
  auto& services = GetApplicationServices();
  services.showHelp = ShowHelp;
  services.getWorkingFolder = GetWorkingFolder;
  services.activeMindloft = platform::ActiveMindloft;
  return true;
} catch (...) {
  ShowError("ConsoleApp", "OnInit");
  return false;
}

int ConsoleApp::OnRun() try {
  if (options_.directoryIsMissing) {
    GetMessenger().ShowMessage(kDirectoryIsMissing);
    return EXIT_FAILURE;
  }
  hidden_ = std::make_unique<frmHidden>(
      StartServices::Real(options_.directoryFile, [this] { return early_->Open(); }));
  hidden_->Form_Load(options_.nodeName);
  // Handed over, or not logged in: no form remains, and so does no process.
  return GetTopWindow() ? wxApp::OnRun() : EXIT_SUCCESS;
} catch (...) {
  ShowError("ConsoleApp", "OnRun");
  return EXIT_FAILURE;
}

int ConsoleApp::OnExit() {
  hidden_.reset();
  Guarded("ConsoleApp", "OnExit", [] {
    EndLanguageImport();
    SetApplication(nullptr);
    ResetServices();
  });
  delete wxLog::SetActiveTarget(nullptr);
  return wxApp::OnExit();
}

wxLayoutDirection ConsoleApp::GetLayoutDirection() const {
  // The language decides, not the region of the system.
  return GetResource().IsRightToLeft() ? wxLayout_RightToLeft : wxLayout_LeftToRight;
}

bool ConsoleApp::OnExceptionInMainLoop() {
  ShowError("ConsoleApp", "OnExceptionInMainLoop");
  return true;
}

void ConsoleApp::OnUnhandledException() {
  ShowError("ConsoleApp", "OnUnhandledException");
}

void ConsoleApp::OnAssertFailure(const wxChar* file, int line, const wxChar* function,
                                 const wxChar* condition, const wxChar* message) {
  // The toolkit goes on after a failed check; so does the program, and the log tells.
  wxString text;
  text << "toolkit check failed: " << condition << " in " << function << " at " << file << ":" << line;
  if (message) text << ": " << message;
  GetUtility().Log(ToUtf8(text));
}

}  // namespace mindloft
