#include "backend/corvane/Server.h"

#include "backend/corvane/KDomains.h"
#include "backend/corvane/Log.h"
#include "backend/corvane/Roles.h"
#include "backend/corvane/Styles.h"
#include "backend/corvane/Users.h"

namespace mindloft::Corvane {

std::shared_ptr<KDomains> Server::KDomains() {
  return std::make_shared<Corvane::KDomains>(login_->session);
}

std::shared_ptr<Users> Server::Users() {
  return std::make_shared<Corvane::Users>(login_->session, Collection::Users, 0);
}

std::shared_ptr<Roles> Server::Roles() {
  return std::make_shared<Corvane::Roles>(login_->session);
}

std::shared_ptr<Log> Server::Log() {
  return std::make_shared<Corvane::Log>(login_->session);
}

std::shared_ptr<Styles> Server::Styles() {
  return std::make_shared<Corvane::Styles>(login_->session);
}

}  // namespace mindloft::Corvane
