#include "platform/linux/SecretService.h"

#include <libsecret/secret.h>

#include "platform/linux/LoadedLibrary.h"

namespace mindloft::platform {
namespace {

/// What is used of the library.
struct Library {
  Library() {
    const LoadedLibrary secret("libsecret-1.so.0");
    isLoaded = secret && secret.Find(store, "secret_password_store_sync") &&
               secret.Find(lookup, "secret_password_lookup_sync") &&
               secret.Find(clear, "secret_password_clear_sync") && secret.Find(free, "secret_password_free");
  }

  decltype(&secret_password_store_sync) store = nullptr;
  decltype(&secret_password_lookup_sync) lookup = nullptr;
  decltype(&secret_password_clear_sync) clear = nullptr;
  decltype(&secret_password_free) free = nullptr;
  bool isLoaded = false;
};

const Library& TheLibrary() {
  static const Library library;
  return library;
}

const SecretSchema& Schema() {
  static const SecretSchema schema = [] {
    SecretSchema made{};
    made.name = "com.ordwell.Mindloft.Secret";
    made.attributes[0] = {"id", SECRET_SCHEMA_ATTRIBUTE_STRING};
    return made;
  }();
  return schema;
}

/// True when the call went well; its error is dropped otherwise.
bool Succeeded(GError* error) {
  if (!error) return true;
  g_error_free(error);
  return false;
}

}  // namespace

bool KeepInSecretService(const std::string& id, const std::string& secret) {
  const auto& library = TheLibrary();
  if (!library.isLoaded) return false;
  GError* error = nullptr;
  const bool kept = library.store(&Schema(), nullptr, "Mindloft", secret.c_str(), nullptr, &error, "id",
                                  id.c_str(), nullptr) != FALSE;
  return Succeeded(error) && kept;
}

std::optional<std::string> FindInSecretService(const std::string& id) {
  const auto& library = TheLibrary();
  if (!library.isLoaded) return {};
  GError* error = nullptr;
  char* found = library.lookup(&Schema(), nullptr, &error, "id", id.c_str(), nullptr);
  if (!Succeeded(error) || !found) return {};
  std::string secret = found;
  library.free(found);
  return secret;
}

void DropFromSecretService(const std::string& id) {
  const auto& library = TheLibrary();
  if (!library.isLoaded) return;
  GError* error = nullptr;
  library.clear(&Schema(), nullptr, &error, "id", id.c_str(), nullptr);
  Succeeded(error);
}

}  // namespace mindloft::platform
