#include "platform/SecretStore.h"

#include <charconv>

#include "backend/errors/Error.h"
#include "platform/FileAccess.h"
#include "platform/Random.h"

namespace mindloft::platform {
namespace {

constexpr char kScheme[] = "file:";
constexpr std::size_t kIdBytes = 16;

class FileSecrets : public SecretStore {
 public:
  explicit FileSecrets(std::filesystem::path folder) : folder_(std::move(folder)) {}

  std::string Protect(const std::string& secret) override {
    const std::string id = NewSecretId();
    try {
      std::filesystem::create_directories(folder_);
      ReplaceWholeFile(folder_ / id, secret);
    } catch (const std::exception& failure) {
      throw Error(ErrorNumber::SecretNotProtected, failure.what());
    }
    return kScheme + id;
  }

  std::optional<std::string> Reveal(const std::string& token) override {
    const auto id = SecretIdOf(token, kScheme);
    if (!id) return {};
    try {
      return ReadWholeFile(folder_ / *id);
    } catch (const Error&) {
      return {};
    }
  }

  void Forget(const std::string& token) noexcept override {
    std::error_code gone;
    if (const auto id = SecretIdOf(token, kScheme)) std::filesystem::remove(folder_ / *id, gone);
  }

 private:
  std::filesystem::path folder_;
};

}  // namespace

std::shared_ptr<SecretStore> FileSecretStore(std::filesystem::path folder) {
  return std::make_shared<FileSecrets>(std::move(folder));
}

std::string NewSecretId() {
  return HexText(RandomBytes(kIdBytes));
}

std::optional<std::string> SecretIdOf(const std::string& token, const std::string& scheme) {
  if (!token.starts_with(scheme)) return {};
  auto id = token.substr(scheme.size());
  const bool known = id.size() == 2 * kIdBytes && HexBytes(id).has_value();
  return known ? std::optional(id) : std::nullopt;
}

std::string HexText(const std::string& bytes) {
  constexpr char digits[] = "0123456789abcdef";
  std::string text;
  text.reserve(2 * bytes.size());
  for (const char each : bytes) {
    const auto byte = static_cast<unsigned char>(each);
    text += digits[byte >> 4];
    text += digits[byte & 15];
  }
  return text;
}

std::optional<std::string> HexBytes(const std::string& text) {
  if (text.size() % 2 != 0) return {};
  std::string bytes;
  bytes.reserve(text.size() / 2);
  for (auto at = text.data(); at != text.data() + text.size(); at += 2) {
    unsigned char byte = 0;
    if (std::from_chars(at, at + 2, byte, 16).ptr != at + 2) return {};
    bytes += static_cast<char>(byte);
  }
  return bytes;
}

}  // namespace mindloft::platform
