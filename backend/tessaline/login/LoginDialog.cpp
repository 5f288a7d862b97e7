#include "backend/tessaline/login/LoginDialog.h"

#include "backend/tessaline/Services.h"
#include "backend/tessaline/login/LoginTarget.h"
#include "backend/tessaline/login/frmLogin.h"
#include "core/ErrorHandling.h"
#include "core/Refresh.h"
#include "platform/Paths.h"

namespace mindloft::Tessaline {
namespace {

constexpr int kApplicationTitle = 61200;

}  // namespace

LoginDialog::LoginDialog(std::filesystem::path directoryFile)
    : directoryFile_(directoryFile.empty() ? platform::DefaultDirectoryFile() : std::move(directoryFile)) {}

bool LoginDialog::Login(const wxString& title, const wxString& userName, wxWindow* owner) try {
  auto& resource = GetResource();
  const int languageBefore = resource.CurrentLanguage();
  const wxString server = LoginTarget::ServerOfSettings();
  const int titleNumber = title == resource.GetString(kApplicationTitle) ? kApplicationTitle : 0;
  LoginFields fields{title, titleNumber, userName, server, server, directoryFile_};
  if (fields.userName.empty()) fields.userName = resource.GetSetting(Setting::LoginUserName);

  int result = frmLogin::kReopen;
  while (result == frmLogin::kReopen) {
    frmLogin form(owner, fields, delay_);
    result = form.ShowModal();
  }
  if (resource.CurrentLanguage() != languageBefore) {
    if (result == wxID_OK) {
      resource.KeepLanguage();
    } else if (resource.SwitchLanguage(languageBefore)) {
      GetRefresh()->NotifyLanguage();
    }
  }
  return result == wxID_OK;
} catch (...) {
  Raise("LoginDialog", "Login");
}

}  // namespace mindloft::Tessaline
