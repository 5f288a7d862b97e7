#pragma once

#include <memory>
#include <string>

#include "backend/directory/Directory.h"

namespace mindloft::Corvane {

/// A directory with the login that all objects of one connection work in. Objects keep it alive; after Logout
/// its session is 0 and every call is refused by the directory.
struct Session {
  std::shared_ptr<Directory> directory;
  SessionId id = 0;
};

/// An object's identifier as the console's text, and back. A text that is none gives 0.
std::string IdText(ObjectId id);
ObjectId IdFromText(const std::string& text);

}  // namespace mindloft::Corvane
