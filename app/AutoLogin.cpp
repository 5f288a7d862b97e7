#include "app/AutoLogin.h"

#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "backend/tessaline/login/SecretText.h"
#include "backend/tessaline/login/WebSettings.h"
#include "core/ErrorHandling.h"

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

}  // namespace

bool IsAutoLoginEnabled() try {
  return GetConvert().ToInteger(GetResource().GetSetting(Setting::AutoLoginEnabled)) == 1;
} catch (...) {
  ReportOnly("modPublic", "Main");
  return false;
}

bool AutoLogin() try {
  const auto connection = GetConnection();
  auto& resource = GetResource();
  SetConnectMode(*connection);
  if (!SetServer(*connection)) return false;

  const auto userName = ToUtf8(resource.GetSetting(Setting::LoginUserName));
  auto password = ToUtf8(resource.GetSetting(Setting::LoginPassword));
  bool loggedIn = false;
  try {
    loggedIn = connection->Login(userName, password);
  } catch (...) {
    WipeText(password);
    throw;
  }
  WipeText(password);
  if (!loggedIn) return false;
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
