#pragma once

#include <string>

namespace mindloft::platform {

// What every registry asks of names, so that all of them refuse and accept the same.

/// The key's path without empty parts ("\a\\b\" is "a\b") and broken bytes.
std::string NormalKey(const std::string& key);

/// The same; an Error(Registry) when it holds control characters.
std::string CheckedKey(const std::string& key);

/// As CheckedKey, and the hive itself (an empty path) is refused too: nobody empties a whole hive by mistake.
std::string CheckedKeyToDelete(const std::string& key);

/// A value's name; an Error(Registry) when it holds control characters. An empty one is the key's default
/// value.
std::string CheckedValueName(const std::string& name);

}  // namespace mindloft::platform
