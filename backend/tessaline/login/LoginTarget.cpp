#include "backend/tessaline/login/LoginTarget.h"

#include "backend/corvane/Connection.h"
#include "backend/corvane/LocalDirectory.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "backend/tessaline/login/WebSettings.h"
#include "platform/Paths.h"

namespace mindloft {

using Tessaline::Setting;

LoginTarget::LoginTarget(const wxString& server, const std::filesystem::path& directoryFile)
    : kind_(Kind::Server), server_(server), file_(directoryFile) {
  server_.Trim(true).Trim(false);
  const auto lower = server_.Lower();
  if (Corvane::IsLocalServer(ToUtf8(server_))) {
    kind_ = Kind::Local;
  } else if (lower.StartsWith("http:") || lower.StartsWith("https:")) {
    kind_ = Kind::Web;
  }
}

wxString LoginTarget::ServerOfSettings() {
  auto& resource = GetResource();
  auto mode = resource.GetSetting(Setting::ConnectMode);
  return mode.Trim(true).Trim(false) == "2" ? resource.GetSetting(Setting::WebServerURL, true)
                                            : resource.GetSetting(Setting::ConfigurationServer, true);
}

bool LoginTarget::IsMissing() const {
  std::error_code ignored;
  return IsLocal() && !std::filesystem::exists(file_, ignored);
}

wxString LoginTarget::Description() const {
  constexpr int kThisComputer = 61202, kServer = 61203, kWebServer = 61204;
  switch (kind_) {
    case Kind::Local:
      return GetResource().GetFormatString(kThisComputer, {ToWx(platform::PathToUtf8(file_))});
    case Kind::Web:
      return GetResource().GetFormatString(kWebServer, {server_});
    default:
      return GetResource().GetFormatString(kServer, {server_});
  }
}

void LoginTarget::Apply(Corvane::Connection& connection) const {
  connection.SetConnectMode(kind_ == Kind::Web ? 2 : 1);
  if (kind_ == Kind::Web) {
    LoadWebSettings(connection);
    connection.SetWebAddress(ToUtf8(SecureWebAddress(server_)));
    return;
  }
  connection.SetConfigurationServer(IsLocal() ? std::string{} : ToUtf8(server_));
  // The port of a directory file has no meaning; a damaged setting must not keep anybody out of it.
  if (IsLocal()) return;
  connection.SetConfigurationPort(
      GetConvert().ToLong(GetResource().GetSetting(Setting::ConfigurationPort, true)));
}

}  // namespace mindloft
