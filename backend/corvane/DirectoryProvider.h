#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "backend/directory/Directory.h"

namespace mindloft::Corvane {

/// Where a connection leads: what the seam to a directory needs to know.
struct ConnectionTarget {
  int connectMode = 0;              ///< 0 unset, 1 local network, 2 web
  std::string configurationServer;  ///< mode 1
  std::int32_t configurationPort = 0;
  std::string webAddress;  ///< mode 2
  bool operator==(const ConnectionTarget&) const = default;
};

/// Opens the directory that a target means; throws ServerUnreachable when there is no way to it.
using DirectoryProvider = std::function<std::shared_ptr<Directory>(const ConnectionTarget&)>;

/// The provider that knows the embedded directory: mode 1 with an empty server or "(local)" (any case) opens
/// `file`; every other target is ServerUnreachable.
DirectoryProvider EmbeddedDirectoryProvider(std::filesystem::path file);
/// The same, with another way to open it.
DirectoryProvider EmbeddedDirectoryProvider(std::function<std::shared_ptr<Directory>()> open);

}  // namespace mindloft::Corvane
