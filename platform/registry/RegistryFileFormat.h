#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/RegistryStore.h"
#include "platform/registry/RegistryTree.h"

namespace mindloft::platform {

/// The text format of registry editors, "Windows Registry Editor Version 5.00": [HKEY_CURRENT_USER\key]
/// lines, "name"="text", "name"=dword:0000002a, "name"=hex(type):bytes, "name"=- and [-key] for deleting, ";"
/// comments. Texts with control characters are written as hex(1), which is how the format carries them.
class RegistryFileFormat {
 public:
  /// What one line (with its continuations) asks for.
  struct Step {
    enum class Kind { Set, DeleteValue, DeleteKey };
    Kind kind;
    RegistryRoot root;
    std::string key;
    RegistryEntry entry;  ///< of DeleteValue only the name; of DeleteKey nothing
  };

  struct Content {
    std::vector<Step> steps;
    /// Lines that are none of the format, or stand below a key line that is none.
    std::vector<std::string> unreadable;
    bool hasHeader = false;
    bool IsDamaged() const { return !unreadable.empty() || !hasHeader; }
  };

  /// UTF-8, or UTF-16 with its mark, as registry editors write it. An empty file has no damage.
  static Content Parse(std::string_view file);

  /// Parses and applies to the tree.
  static RegistryTree Tree(const Content& content);

  /// Applies to a store; throws what the store throws.
  static void Import(const Content& content, RegistryStore& store);

  /// The file of a tree.
  static std::string Write(const RegistryTree& tree);
};

}  // namespace mindloft::platform
