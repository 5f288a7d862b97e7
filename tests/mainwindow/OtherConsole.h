#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "backend/corvane/Corvane.h"

namespace mindloft::test {

/// A second console at work in the same directory, over a connection of its own.
class OtherConsole {
 public:
  OtherConsole(const std::filesystem::path& file, const std::string& user, const std::string& password)
      : application_(Corvane::EmbeddedDirectoryProvider(file)) {
    application_.Connection()->SetConnectMode(1);
    if (!application_.Connection()->Login(user, password)) throw std::runtime_error("not logged in");
  }

  std::shared_ptr<Corvane::Server> Server() { return application_.Server(); }
  std::shared_ptr<Corvane::KDomain> Domain(const std::string& key) {
    return Server()->KDomains()->Item(key)->KDomain();
  }

 private:
  Corvane::Application application_;
};

}  // namespace mindloft::test
