#include "app/modPublic.h"

#include "app/AutoLogin.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "core/ErrorHandling.h"
#include "core/modShare.h"
#include "editors/SessionLanguage.h"
#include "mainwindow/CommandLineState.h"
#include "platform/Paths.h"
#include "platform/Shell.h"
#include "platform/ui/CommonControls.h"

namespace mindloft {
namespace {

constexpr int kHelpFile = 49063;
constexpr int kHelpIsMissing = 61245;
constexpr int kHelpCannotBeShown = 61246;
constexpr int kApplicationTitle = 61200;
constexpr char kRunOnceKey[] = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\RunOnce";

bool LoginInteractively(const StartServices& services) {
  GetUtility().Log("start: asking for name and password");
  return services.login(GetResource().GetString(kApplicationTitle));
}

/// Shift asks for the login dialog. It is tested a second time after the registry was read, as the key may be
/// pressed meanwhile; then "IsLogin" outweighs it.
bool IsAutoLoginWanted(const StartServices& services) {
  const bool enabled = IsAutoLoginEnabled();
  if (services.isShiftDown()) return false;
  const bool forced =
      GetRegistry().GetValue(platform::RegistryRoot::LocalMachine, kRunOnceKey, "IsLogin") != 0;
  return (!services.isShiftDown() && enabled) || forced;
}

}  // namespace

void Main(const wxString& commandLine, const StartServices& services) try {
  SavedCommandLine() = commandLine;
  platform::InitExtendedComboBoxes();
  SetApplication(std::make_unique<Corvane::Application>(services.directories));
  const bool loggedIn =
      (IsAutoLoginWanted(services) && AutoLogin(services.prepareMainWindow)) || LoginInteractively(services);
  if (!loggedIn) {
    GetUtility().Log("start: not logged in");
    Shutdown();
    return;
  }
  SetSessionLanguage();
  services.showMainWindow();
} catch (...) {
  Raise("modPublic", "Main");
}

void ShowHelp() try {
  const auto name = GetResource().GetString(kHelpFile);
  const auto file = platform::ResourceFolder() / platform::PathFromUtf8(ToUtf8(name));
  std::error_code ignored;
  if (!std::filesystem::exists(file, ignored)) {
    GetMessenger().ShowMessage(kHelpIsMissing, {ToWx(platform::PathToUtf8(file))});
  } else if (!platform::OpenWithShell(file)) {
    GetMessenger().ShowMessage(kHelpCannotBeShown, {ToWx(platform::PathToUtf8(file))});
  }
} catch (...) {
  Raise("modPublic", "ShowHelp");
}

}  // namespace mindloft
