#pragma once

#include <filesystem>
#include <functional>
#include <memory>

#include "backend/directory/Directory.h"

namespace mindloft::Corvane {

class Connection;
class Server;

/// Where a connection leads: what the seam to a directory needs to know.
struct ConnectionTarget {
  int connectMode = 0;              ///< 0 unset, 1 local network, 2 web
  std::string configurationServer;  ///< mode 1
  std::int32_t configurationPort = 0;
  std::string webAddress;  ///< mode 2
};

/// Opens the directory that a target means; throws ServerUnreachable when there is no way to it.
using DirectoryProvider = std::function<std::shared_ptr<Directory>(const ConnectionTarget&)>;

/// The provider that knows the embedded directory: mode 1 with an empty server or "(local)" (any case) opens
/// `file`; every other target is ServerUnreachable.
DirectoryProvider EmbeddedDirectoryProvider(std::filesystem::path file);

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
