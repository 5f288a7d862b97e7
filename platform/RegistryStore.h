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

class RegistryImport;

enum class RegistryRoot { CurrentUser, LocalMachine };

/// A text (UTF-8) or a 32-bit number; values of other types are `OtherRegistryType`. A text with unexpanded
/// "%NAME%" parts is a text as it stands; NULs at a text's end are no part of it, and broken UTF-8 becomes
/// U+FFFD. Setting a value to `OtherRegistryType` stores an empty binary value.
struct OtherRegistryType {
  bool operator==(const OtherRegistryType&) const = default;
};
using RegistryValue = std::variant<std::string, std::uint32_t, OtherRegistryType>;

/// Keys are paths with "\" between their parts; keys and value names are compared without regard to case.
/// Writing throws Error(Registry), also for a key or name with control characters; reading what cannot be
/// read gives nothing. The key's default value has the empty name.
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
  /// Removes a key with all below it; no error when there is none. A whole hive (an empty key) is refused.
  virtual void DeleteKey(RegistryRoot root, const std::string& key) = 0;
  /// Begins to apply a registry file, with the system's registry editor where this is the system's registry
  /// and with the program's own reader elsewhere. Throws as ImportWithOwnReader, and Error(Registry) when the
  /// editor cannot be started. The editor itself tells of no failure: see IsImported.
  virtual std::unique_ptr<RegistryImport> Import(const std::filesystem::path& file);
};

/// The system's registry; where there is none, the file `registry` in the user's configuration folder
/// ($XDG_CONFIG_HOME/mindloft), written atomically and safely with several processes. There, both roots are
/// kept in that file, and a value of LocalMachine that it lacks is read from the files `mindloft/registry` in
/// the folders of $XDG_CONFIG_DIRS (/etc/xdg), in which an administrator can set values for all users.
std::shared_ptr<RegistryStore> SystemRegistry();

/// A registry in a file of its own, on every platform: a text file as registry editors export it (UTF-8).
/// Lines that cannot be read do no harm to the others; before the file is written the next time, it is copied
/// as it is to "<file>.damaged-<UTC time>". A lock file "<file>.lock" lies beside it.
std::shared_ptr<RegistryStore> FileRegistry(std::filesystem::path file);

/// A registry that lives and ends with its object, for tests.
std::shared_ptr<RegistryStore> MemoryRegistry();

}  // namespace mindloft::platform
