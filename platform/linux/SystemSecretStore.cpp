#include "platform/Paths.h"
#include "platform/SecretStore.h"
#include "platform/linux/SecretService.h"

namespace mindloft::platform {
namespace {

constexpr char kScheme[] = "service:";

class DesktopSecrets : public SecretStore {
 public:
  std::string Protect(const std::string& secret) override {
    // A service takes the secret as a text that ends at its first NUL.
    const auto id = NewSecretId();
    if (secret.find('\0') == std::string::npos && KeepInSecretService(id, secret)) {
      // Some accept what they then do not give back, for example while they are locked.
      if (FindInSecretService(id) == secret) return kScheme + id;
      DropFromSecretService(id);
    }
    return Files()->Protect(secret);
  }

  std::optional<std::string> Reveal(const std::string& token) override {
    const auto id = SecretIdOf(token, kScheme);
    return id ? FindInSecretService(*id) : Files()->Reveal(token);
  }

  void Forget(const std::string& token) noexcept override {
    try {
      const auto id = SecretIdOf(token, kScheme);
      if (id)
        DropFromSecretService(*id);
      else
        Files()->Forget(token);
    } catch (...) {
      // What is left behind is as well kept as before.
    }
  }

 private:
  static std::shared_ptr<SecretStore> Files() { return FileSecretStore(ConfigFolder() / "secrets"); }
};

}  // namespace

std::shared_ptr<SecretStore> SystemSecretStore() {
  return std::make_shared<DesktopSecrets>();
}

}  // namespace mindloft::platform
