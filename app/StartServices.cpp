#include "app/StartServices.h"

#include <wx/app.h>
#include <wx/toplevel.h>

#include "app/FirstWindow.h"
#include "backend/tessaline/login/LoginDialog.h"
#include "backend/tessaline/login/SettingsForm.h"
#include "config/frmConfiguration.h"
#include "editors/styles/RegisterStyleEditor.h"
#include "editors/user/RegisterUserEditor.h"
#include "mainwindow/frmSysAdmin.h"
#include "platform/ui/Keyboard.h"

namespace mindloft {

StartServices StartServices::Real(std::filesystem::path directoryFile,
                                  std::function<std::shared_ptr<Directory>()> open) {
  StartServices services;
  services.directories = Corvane::EmbeddedDirectoryProvider(std::move(open));
  services.isShiftDown = platform::IsShiftDown;
  const auto first = std::make_shared<FirstWindow>();
  services.prepareMainWindow = [first] { first->Prepare(); };
  services.login = [directoryFile, first](const wxString& title) {
    first->Drop();
    // Nobody is locked out by the name of a server that is not there.
    SetSettingsForm([](wxWindow* parent) { frmConfiguration(parent).ShowModal(); });
    Tessaline::LoginDialog dialog(directoryFile);
    return dialog.Login(title);
  };
  services.showMainWindow = [first] {
    RegisterUserEditor();
    RegisterStyleEditor();
    first->Show();
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
