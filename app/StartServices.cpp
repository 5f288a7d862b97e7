#include "app/StartServices.h"

#include <wx/app.h>
#include <wx/toplevel.h>

#include "backend/tessaline/Services.h"
#include "backend/tessaline/login/LoginDialog.h"
#include "backend/tessaline/login/SettingsForm.h"
#include "config/frmConfiguration.h"
#include "editors/styles/RegisterStyleEditor.h"
#include "editors/user/RegisterUserEditor.h"
#include "mainwindow/CommandLineState.h"
#include "mainwindow/frmSysAdmin.h"
#include "platform/ui/Keyboard.h"

namespace mindloft {

StartServices StartServices::Real(std::filesystem::path directoryFile,
                                  std::function<std::shared_ptr<Directory>()> open) {
  StartServices services;
  services.directories = Corvane::EmbeddedDirectoryProvider(std::move(open));
  services.isShiftDown = platform::IsShiftDown;
  services.login = [directoryFile](const wxString& title) {
    // Nobody is locked out by the name of a server that is not there.
    SetSettingsForm([](wxWindow* parent) { frmConfiguration(parent).ShowModal(); });
    Tessaline::LoginDialog dialog(directoryFile);
    return dialog.Login(title);
  };
  services.showMainWindow = [] {
    RegisterUserEditor();
    RegisterStyleEditor();
    const bool startWithNode = !GetStringHelper().IsBlank(SavedCommandLine());
    // Destroys itself when it is closed.
    auto* window = new frmSysAdmin(GetConnection(), startWithNode);
    wxTheApp->SetTopWindow(window);
    window->Show();
  };
  services.raiseLogin = [] {
    for (auto* window : wxTopLevelWindows) {
      if (window->IsShown()) window->Raise();
    }
  };
  services.handOver = [] {
    if (auto* window = dynamic_cast<frmSysAdmin*>(wxTheApp->GetTopWindow())) window->HandOver();
  };
  return services;
}

}  // namespace mindloft
