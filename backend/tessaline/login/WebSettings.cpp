#include "backend/tessaline/login/WebSettings.h"

#include "backend/corvane/Connection.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "core/modShare.h"

namespace mindloft {

using Tessaline::Setting;

wxString SecureWebAddress(const wxString& address) {
  if (GetResource().GetSetting(Setting::SecureChannel, true) != "1") return address;
  return SetURL(address, "HTTP:", "HTTPS:");
}

void LoadWebSettings(Corvane::Connection& connection) {
  auto& resource = GetResource();
  connection.SetProxyEnabled(GetConvert().ToBoolean(resource.GetSetting(Setting::ProxyEnabled)));
  if (connection.ProxyEnabled()) {
    connection.SetProxyIP(ToUtf8(resource.GetSetting(Setting::ProxyIP, true)));
    connection.SetProxyPort(ToUtf8(resource.GetSetting(Setting::ProxyPort, true)));
    connection.SetProxyUser(ToUtf8(resource.GetSetting(Setting::ProxyUser, true)));
    connection.SetProxyPassword(ToUtf8(resource.GetSetting(Setting::ProxyPassword, true)));
  }
  // Not the 120 seconds that the configuration dialog offers.
  constexpr std::int32_t kFallbackSeconds = 30;
  const auto seconds = GetConvert().ToLong(resource.GetSetting(Setting::WebTimeout));
  connection.SetTimeout(seconds >= 1 ? seconds : kFallbackSeconds);
}

}  // namespace mindloft
