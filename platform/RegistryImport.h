#pragma once

#include <filesystem>
#include <memory>

#include "platform/RegistryStore.h"

namespace mindloft::platform {

/// The import of a registry file that has begun. Nobody needs to wait for it, and dropping this does not stop
/// it.
class RegistryImport {
 public:
  virtual ~RegistryImport() = default;
  /// Never blocks.
  virtual bool IsRunning() const = 0;
};

/// Applies the file with the program's own reader of the format; the import has ended when this returns.
/// Error(PathAccess) when the file cannot be read, Error(Registry) when it is damaged (nothing is applied
/// then) or the store refuses a value.
std::unique_ptr<RegistryImport> ImportWithOwnReader(const std::filesystem::path& file, RegistryStore& store);

/// Whether the file is there and whole, without one line that is none of the format.
bool IsRegistryFile(const std::filesystem::path& file);

/// Whether every value that the file sets in that hive stands in the store as the file has it. False for a
/// file that cannot be read.
bool IsImported(const std::filesystem::path& file, RegistryRoot root, const RegistryStore& store);

}  // namespace mindloft::platform
