#pragma once

#include <memory>

#include "backend/corvane/DirectoryProvider.h"

namespace mindloft::Corvane {

class Connection;
class Server;

/// Root object; one per process, created at start.
class Application {
 public:
  explicit Application(DirectoryProvider provider);
  ~Application();
  Application(const Application&) = delete;
  Application& operator=(const Application&) = delete;

  /// The login connection of the process; always the same object.
  std::shared_ptr<Corvane::Connection> Connection() const { return connection_; }
  /// The server's directory; always the same object. Its operations need a login.
  std::shared_ptr<Corvane::Server> Server() const { return server_; }

 private:
  std::shared_ptr<Corvane::Connection> connection_;
  std::shared_ptr<Corvane::Server> server_;
};

}  // namespace mindloft::Corvane
