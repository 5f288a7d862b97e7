#include "backend/corvane/Application.h"

#include <utility>

#include "backend/corvane/Connection.h"
#include "backend/corvane/Server.h"

namespace mindloft::Corvane {

Application::Application(DirectoryProvider provider) {
  const auto login = std::make_shared<CurrentLogin>();
  connection_ = std::make_shared<Corvane::Connection>(login, std::move(provider));
  server_ = std::make_shared<Corvane::Server>(login);
}

Application::~Application() = default;

}  // namespace mindloft::Corvane
