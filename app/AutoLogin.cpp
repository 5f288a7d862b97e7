#include "app/AutoLogin.h"

#include <future>
#include <memory>

#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "backend/tessaline/login/SecretText.h"
#include "backend/tessaline/login/WebSettings.h"
#include "core/ErrorHandling.h"
#include "platform/Beside.h"

namespace mindloft {
namespace {

using Tessaline::Setting;

constexpr int kUnset = 0, kLocalNetwork = 1, kWeb = 2;

bool IsEmptyWithoutBlanks(const std::string& text) {
  return GetStringHelper().IsBlank(ToWx(text));
}

void SetConnectMode(Corvane::Connection& connection) {
  auto& resource = GetResource();
  connection.SetConnectMode(GetConvert().ToInteger(resource.GetSetting(Setting::ConnectMode)));
  if (connection.ConnectMode() != kUnset) return;
  connection.SetConnectMode(kLocalNetwork);
  resource.SetSetting(Setting::ConnectMode, wxString::Format("%d", kLocalNetwork));
}

/// False when the settings name no server.
bool SetServer(Corvane::Connection& connection) {
  auto& resource = GetResource();
  if (connection.ConnectMode() == kLocalNetwork) {
    connection.SetConfigurationServer(ToUtf8(resource.GetSetting(Setting::ConfigurationServer, true)));
    connection.SetConfigurationPort(
        GetConvert().ToLong(resource.GetSetting(Setting::ConfigurationPort, true)));
    return !IsEmptyWithoutBlanks(connection.ConfigurationServer());
  }
  if (connection.ConnectMode() == kWeb) {
    connection.SetWebAddress(ToUtf8(SecureWebAddress(resource.GetSetting(Setting::WebServerURL, true))));
    LoadWebSettings(connection);
    return !IsEmptyWithoutBlanks(connection.WebAddress());
  }
  return true;
}

/// On another thread. The Connection is nobody else's until the result is there.
std::future<bool> LoginBeside(Corvane::Connection& connection) {
  const auto& resource = GetResource();
  return platform::Beside(
      [&connection, userName = ToUtf8(resource.GetSetting(Setting::LoginUserName)),
       password = std::make_shared<SecretText>(resource.GetSetting(Setting::LoginPassword))] {
        return connection.Login(userName, password->Utf8());
      });
}

}  // namespace

bool IsAutoLoginEnabled() try {
  return GetConvert().ToInteger(GetResource().GetSetting(Setting::AutoLoginEnabled)) == 1;
} catch (...) {
  ReportOnly("modPublic", "Main");
  return false;
}

bool AutoLogin(const std::function<void()>& meanwhile) try {
  const auto connection = GetConnection();
  auto& resource = GetResource();
  SetConnectMode(*connection);
  if (!SetServer(*connection)) return false;

  auto loggedIn = LoginBeside(*connection);
  if (meanwhile) meanwhile();
  if (!loggedIn.get()) return false;
  // The address as the user knows it: the secure scheme is for the login only.
  if (connection->ConnectMode() == kWeb) {
    connection->SetWebAddress(ToUtf8(resource.GetSetting(Setting::WebServerURL, true)));
  }
  return true;
} catch (...) {
  ReportOnly("modPublic", "AutoLogin");
  return false;
}

}  // namespace mindloft
