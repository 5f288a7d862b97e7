#pragma once

#include <memory>
#include <utility>

#include "backend/corvane/Session.h"

namespace mindloft::Corvane {

class KDomains;
class Log;
class Roles;
class Styles;
class Users;

/// The server's directory. What it returns belongs to the login of that moment.
class Server {
 public:
  explicit Server(std::shared_ptr<CurrentLogin> login) : login_(std::move(login)) {}

  /// The knowledge domains as the logged-in user sees them.
  std::shared_ptr<Corvane::KDomains> KDomains();
  std::shared_ptr<Corvane::Users> Users();
  std::shared_ptr<Corvane::Roles> Roles();
  std::shared_ptr<Corvane::Log> Log();
  std::shared_ptr<Corvane::Styles> Styles();

 private:
  std::shared_ptr<CurrentLogin> login_;
};

}  // namespace mindloft::Corvane
