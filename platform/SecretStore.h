#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

namespace mindloft::platform {

/// Keeps secret texts (UTF-8) so that only this user can have them back. All of it may be called on any
/// thread.
class SecretStore {
 public:
  virtual ~SecretStore() = default;
  /// Keeps the secret and returns the token by which it is found again: printable ASCII that tells nothing of
  /// the secret, to be stored in its place. Error(SecretNotProtected) when it cannot be kept.
  virtual std::string Protect(const std::string& secret) = 0;
  /// Nothing for a token of another user or another computer, a damaged one, and one of a secret that is
  /// gone.
  virtual std::optional<std::string> Reveal(const std::string& token) = 0;
  /// Drops what a token stands for, as far as anything is kept beside the token.
  virtual void Forget(const std::string& token) noexcept = 0;
};

/// On Windows the system's data protection, whose token is the encrypted secret itself. Elsewhere the
/// desktop's secret service; where there is none, the store below in the folder `secrets` of ConfigFolder.
std::shared_ptr<SecretStore> SystemSecretStore();

/// A file for each secret, which only its owner can read. Tokens are "file:" and the file's name.
std::shared_ptr<SecretStore> FileSecretStore(std::filesystem::path folder);

/// A new name for a secret: 32 hexadecimal digits.
std::string NewSecretId();
/// The name in a token of that scheme ("file:0a1b..."); nothing when the token is of another scheme or
/// damaged.
std::optional<std::string> SecretIdOf(const std::string& token, const std::string& scheme);

/// Bytes as pairs of hexadecimal digits, and back; nothing when the text is not made of such pairs.
std::string HexText(const std::string& bytes);
std::optional<std::string> HexBytes(const std::string& text);

}  // namespace mindloft::platform
