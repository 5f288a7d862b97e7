#pragma once

#include "backend/directory/Directory.h"
#include "backend/directory/store/StoreParts.h"

namespace mindloft {

/// Every user's own configuration document.
class ConfigurationStore {
 public:
  explicit ConfigurationStore(const StoreParts& parts) : parts_(parts) {}
  Directory::UserConfiguration Load(const Caller& caller);
  /// Conflict when another console stored one meanwhile; TextInvalid, TextTooLong.
  Directory::UserConfiguration Store(const Caller& caller, const Directory::UserConfiguration& configuration);

 private:
  StoreParts parts_;
};

}  // namespace mindloft
