#include <windows.h>
#include <dpapi.h>

#include "backend/errors/Error.h"
#include "platform/SecretStore.h"
#include "platform/windows/Wide.h"

namespace mindloft::platform {
namespace {

constexpr char kScheme[] = "dpapi:";

/// Bytes that the system has allocated.
class SystemBytes {
 public:
  SystemBytes() = default;
  ~SystemBytes() {
    if (!blob_.pbData) return;
    SecureZeroMemory(blob_.pbData, blob_.cbData);
    LocalFree(blob_.pbData);
  }
  SystemBytes(const SystemBytes&) = delete;
  SystemBytes& operator=(const SystemBytes&) = delete;
  DATA_BLOB* Get() { return &blob_; }
  std::string Text() const { return {reinterpret_cast<const char*>(blob_.pbData), blob_.cbData}; }

 private:
  DATA_BLOB blob_{};
};

DATA_BLOB BlobOf(const std::string& bytes) {
  // The system only reads it.
  return {static_cast<DWORD>(bytes.size()),
          reinterpret_cast<BYTE*>(
              const_cast<char*>(bytes.data()))};  // NOLINT(cppcoreguidelines-pro-type-const-cast)
}

class ProtectedData : public SecretStore {
 public:
  std::string Protect(const std::string& secret) override {
    DATA_BLOB clear = BlobOf(secret);
    SystemBytes encrypted;
    if (!CryptProtectData(&clear, L"Mindloft", nullptr, nullptr, nullptr, CRYPTPROTECT_UI_FORBIDDEN,
                          encrypted.Get())) {
      throw Error(ErrorNumber::SecretNotProtected, "protecting data;" + SystemErrorText(GetLastError()));
    }
    return kScheme + HexText(encrypted.Text());
  }

  std::optional<std::string> Reveal(const std::string& token) override {
    if (!token.starts_with(kScheme)) return {};
    const auto bytes = HexBytes(token.substr(sizeof kScheme - 1));
    if (!bytes) return {};
    DATA_BLOB encrypted = BlobOf(*bytes);
    SystemBytes clear;
    if (!CryptUnprotectData(&encrypted, nullptr, nullptr, nullptr, nullptr, CRYPTPROTECT_UI_FORBIDDEN,
                            clear.Get())) {
      return {};
    }
    return clear.Text();
  }

  void Forget(const std::string&) noexcept override {}
};

}  // namespace

std::shared_ptr<SecretStore> SystemSecretStore() {
  return std::make_shared<ProtectedData>();
}

}  // namespace mindloft::platform
