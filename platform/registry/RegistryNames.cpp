#include "platform/registry/RegistryNames.h"

#include "backend/errors/Error.h"
#include "platform/Unicode.h"

namespace mindloft::platform {
namespace {

std::string WithoutControlCharacters(const std::string& name, const char* what) {
  if (HasControlCharacter(name)) {
    throw Error(ErrorNumber::Registry, std::string(what) + " with control characters");
  }
  return CleanUtf8(name);
}

}  // namespace

std::string NormalKey(const std::string& key) {
  std::string path;
  for (char c : CleanUtf8(key)) {
    if (c != '\\' || (!path.empty() && path.back() != '\\')) path += c;
  }
  if (!path.empty() && path.back() == '\\') path.pop_back();
  return path;
}

std::string CheckedKey(const std::string& key) {
  return NormalKey(WithoutControlCharacters(key, "a registry key"));
}

std::string CheckedKeyToDelete(const std::string& key) {
  auto path = CheckedKey(key);
  if (path.empty()) throw Error(ErrorNumber::Registry, "a whole registry hive is not deleted");
  return path;
}

std::string CheckedValueName(const std::string& name) {
  return WithoutControlCharacters(name, "a registry value's name");
}

}  // namespace mindloft::platform
