#include "backend/corvane/Connection.h"

#include <utility>

#include "backend/corvane/ConfigDocument.h"
#include "backend/corvane/User.h"
#include "backend/errors/Error.h"

namespace mindloft::Corvane {

Connection::Connection(std::shared_ptr<CurrentLogin> login, DirectoryProvider provider)
    : login_(std::move(login)), provider_(std::move(provider)) {}

Connection::~Connection() {
  try {
    Logout();
  } catch (...) {
    // The directory has said so already where it could matter; its session ends with it.
  }
}

std::shared_ptr<User> Connection::CurrentUser() {
  if (!IsLoggedIn()) return nullptr;
  const auto& session = login_->session;
  return std::make_shared<User>(session, session->Door().CurrentUser(session->id));
}

std::shared_ptr<ConfigDocument> Connection::UserConfig() {
  return std::make_shared<ConfigDocument>(login_->session);
}

bool Connection::Login(const std::string& userName, const std::string& password,
                       const std::optional<std::string>& /*domain*/,
                       const std::optional<std::string>& /*language*/) {
  Logout();
  if (!directory_ || !(directoryTarget_ == target_)) {
    directory_.reset();
    directory_ = provider_(target_);
    directoryTarget_ = target_;
  }
  try {
    const auto id = directory_->Login(userName, password);
    login_->session = std::make_shared<Session>(Session{directory_, id});
    return true;
  } catch (const Error& error) {
    if (error.Number() != ErrorNumber::LoginFailed) throw;
    return false;
  }
}

void Connection::SetLanguage(int language, const Progress& progress) {
  if (!IsLoggedIn()) return;
  login_->session->Door().SetLanguage(login_->session->id, language, progress);
  language_ = language;
}

void Connection::Logout() {
  if (!IsLoggedIn()) return;
  // Whatever the directory answers, this login is over and its file is let go.
  language_ = 0;
  const auto id = std::exchange(login_->session->id, 0);
  const auto directory = std::move(login_->session->directory);
  directory_.reset();
  directory->Logout(id);
}

}  // namespace mindloft::Corvane
