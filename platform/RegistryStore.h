#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace mindloft::platform {

enum class RegistryRoot { CurrentUser, LocalMachine };

/// A text (UTF-8) or a 32-bit number; values of other types are `OtherRegistryType`.
struct OtherRegistryType {
  bool operator==(const OtherRegistryType&) const = default;
};
using RegistryValue = std::variant<std::string, std::uint32_t, OtherRegistryType>;

/// Keys are paths with "\" between their parts; keys and value names are compared without regard to case.
/// Writing throws Error(Registry); reading what cannot be read gives nothing.
class RegistryStore {
 public:
  virtual ~RegistryStore() = default;
  virtual std::optional<RegistryValue> Get(RegistryRoot root, const std::string& key,
                                           const std::string& name) const = 0;
  virtual void Set(RegistryRoot root, const std::string& key, const std::string& name,
                   const RegistryValue& value) = 0;
  virtual void Delete(RegistryRoot root, const std::string& key, const std::string& name) = 0;
  /// In the store's order.
  virtual std::vector<std::pair<std::string, RegistryValue>> Values(RegistryRoot root,
                                                                    const std::string& key) const = 0;
  /// Removes a key with all below it; no error when there is none.
  virtual void DeleteKey(RegistryRoot root, const std::string& key) = 0;
};

/// The system's registry; where there is none, the file `registry` in the user's configuration folder
/// ($XDG_CONFIG_HOME/mindloft), written atomically and safely with several processes.
std::shared_ptr<RegistryStore> SystemRegistry();

/// A registry in a file of its own, on every platform.
std::shared_ptr<RegistryStore> FileRegistry(std::filesystem::path file);

/// A registry that lives and ends with its object, for tests.
std::shared_ptr<RegistryStore> MemoryRegistry();

}  // namespace mindloft::platform
