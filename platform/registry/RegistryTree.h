#pragma once

#include <list>
#include <map>
#include <string>
#include <vector>

#include "platform/RegistryStore.h"

namespace mindloft::platform {

/// One value as a store keeps it. `raw` is how the file wrote a value that this program has no better form
/// for
/// ("hex(7):61,00"); it goes back into the file as it came.
struct RegistryEntry {
  std::string name;
  RegistryValue value;
  std::string raw;
};

/// Keys and their values in the order in which they came; found without regard to case.
class RegistryTree {
 public:
  struct Key {
    RegistryRoot root;
    std::string path;
    std::list<RegistryEntry> entries;
    std::map<std::string, std::list<RegistryEntry>::iterator> byName;
  };

  /// The value, or null.
  const RegistryEntry* Find(RegistryRoot root, const std::string& key, const std::string& name) const;
  /// The key, or null when it has never had a value.
  const Key* FindKey(RegistryRoot root, const std::string& key) const;
  /// A value that exists keeps its place and the letter case of its name. Error(Registry) for a key or name
  /// with control characters.
  void Set(RegistryRoot root, const std::string& key, RegistryEntry entry);
  /// Whether there was one.
  bool Delete(RegistryRoot root, const std::string& key, const std::string& name);
  /// The key and every one below it; whether there was one. Error(Registry) for an empty key.
  bool DeleteKey(RegistryRoot root, const std::string& key);
  const std::list<Key>& Keys() const { return keys_; }

  // What the reading half of a RegistryStore gives.
  std::optional<RegistryValue> Get(RegistryRoot root, const std::string& key, const std::string& name) const;
  std::vector<std::pair<std::string, RegistryValue>> Values(RegistryRoot root, const std::string& key) const;

 private:
  using Place = std::pair<RegistryRoot, std::string>;

  std::list<Key> keys_;
  std::map<Place, std::list<Key>::iterator> byPath_;
};

}  // namespace mindloft::platform
