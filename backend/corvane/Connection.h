#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "backend/corvane/DirectoryProvider.h"
#include "backend/corvane/Session.h"

namespace mindloft::Corvane {

class ConfigDocument;
class User;

/// The login connection of the process.
class Connection {
 public:
  Connection(std::shared_ptr<CurrentLogin> login, DirectoryProvider provider);
  /// Logs out.
  ~Connection();
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  const std::string& WebAddress() const { return target_.webAddress; }
  void SetWebAddress(std::string address) { target_.webAddress = std::move(address); }
  bool ProxyEnabled() const { return proxyEnabled_; }
  void SetProxyEnabled(bool enabled) { proxyEnabled_ = enabled; }
  const std::string& ProxyIP() const { return proxyIP_; }
  void SetProxyIP(std::string ip) { proxyIP_ = std::move(ip); }
  const std::string& ProxyPort() const { return proxyPort_; }
  void SetProxyPort(std::string port) { proxyPort_ = std::move(port); }
  const std::string& ProxyUser() const { return proxyUser_; }
  void SetProxyUser(std::string user) { proxyUser_ = std::move(user); }
  const std::string& ProxyPassword() const { return proxyPassword_; }
  void SetProxyPassword(std::string password) { proxyPassword_ = std::move(password); }
  /// Seconds.
  void SetTimeout(std::int32_t seconds) { timeout_ = seconds; }
  std::int32_t Timeout() const { return timeout_; }
  const std::string& ConfigurationServer() const { return target_.configurationServer; }
  void SetConfigurationServer(std::string server) { target_.configurationServer = std::move(server); }
  void SetConfigurationPort(std::int32_t port) { target_.configurationPort = port; }
  /// 0 unset, 1 local network, 2 web.
  int ConnectMode() const { return target_.connectMode; }
  void SetConnectMode(int mode) { target_.connectMode = mode; }
  /// The logged-in user; nothing when nobody is logged in.
  std::shared_ptr<User> CurrentUser();
  /// The logged-in user's configuration document.
  std::shared_ptr<ConfigDocument> UserConfig();
  /// Ends an earlier login, then opens the target's directory (one that failed logins have opened stays open)
  /// and logs in. False for a wrong name or password; throws what else went wrong (no directory, server not
  /// reached, delayed). The optional arguments belong to the contract and have no meaning for the embedded
  /// directory.
  bool Login(const std::string& userName, const std::string& password,
             const std::optional<std::string>& domain = {}, const std::optional<std::string>& language = {});
  /// Objects that this login has given out are refused from now on. Nothing happens when nobody is logged in.
  void Logout();

  /// Orders and searches names by a language's rules from now on; see Directory::SetLanguage. Nothing happens
  /// when nobody is logged in.
  void SetLanguage(int language, const Progress& progress);
  /// The language whose rules hold in this login; 0: none has been set.
  int Language() const { return language_; }

  bool IsLoggedIn() const { return login_->session->id != 0; }
  const ConnectionTarget& Target() const { return target_; }

 private:
  std::shared_ptr<CurrentLogin> login_;
  DirectoryProvider provider_;
  ConnectionTarget target_, directoryTarget_;
  std::shared_ptr<Directory> directory_;
  int language_ = 0;
  bool proxyEnabled_ = false;
  std::string proxyIP_, proxyPort_, proxyUser_, proxyPassword_;
  std::int32_t timeout_ = 0;
};

}  // namespace mindloft::Corvane
