#pragma once

#include <memory>
#include <string>

#include "backend/directory/Directory.h"

namespace mindloft::Corvane {

/// One login in a directory; all objects that were reached through it share it. After Logout its identifier
/// is 0 for good, so that an object of a past login never acts in a later one.
struct Session {
  std::shared_ptr<Directory> directory;
  SessionId id = 0;

  /// The directory, to make a call in this session; NotLoggedIn when it has ended or not begun.
  Directory& Door() const;
};

/// The login of the process as it is now: the connection changes it, the server reads it.
struct CurrentLogin {
  std::shared_ptr<Session> session = std::make_shared<Session>();
};

/// An object's identifier as the console's text, and back. 0 is the empty text; a text that is no identifier
/// gives 0.
std::string IdText(ObjectId id);
ObjectId IdFromText(const std::string& text);

}  // namespace mindloft::Corvane
