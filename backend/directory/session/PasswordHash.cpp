#include "backend/directory/session/PasswordHash.h"

#include <sodium.h>

#include <cstdio>

#include "backend/directory/Directory.h"
#include "backend/directory/store/TextRules.h"
#include "backend/errors/Error.h"
#include "platform/CryptoLibrary.h"

namespace mindloft {
namespace {

// One of the settings that OWASP's Password Storage Cheat Sheet recommends for Argon2id and holds to be of
// equal strength; this one takes the least time to log in, and the least memory.
constexpr unsigned long long kPasses = 5;
constexpr std::size_t kMemory = 7168 * 1024;

enum class Stored { Present, Dated, Unusable };

/// A damaged file must not make a login take a gigabyte or an hour.
bool IsPayable(const std::string& stored) {
  unsigned long kibibytes = 0, passes = 0, lanes = 0;
  return std::sscanf(stored.c_str(), "$argon2id$v=19$m=%lu,t=%lu,p=%lu$", &kibibytes, &passes, &lanes) == 3 &&
         kibibytes <= 1024 * 1024 && passes <= 64 && lanes <= 16;
}

Stored Examine(const std::string& stored) {
  if (!IsPayable(stored)) return Stored::Unusable;
  switch (crypto_pwhash_argon2id_str_needs_rehash(stored.c_str(), kPasses, kMemory)) {
    case 0:
      return Stored::Present;
    case 1:
      return Stored::Dated;
    default:
      return Stored::Unusable;
  }
}

}  // namespace

std::string HashPassword(std::string_view password) {
  platform::PrepareCryptoLibrary();
  char stored[crypto_pwhash_argon2id_STRBYTES];
  if (crypto_pwhash_argon2id_str(stored, password.data(), password.size(), kPasses, kMemory) != 0)
    throw Error(ErrorNumber::Unexpected, "there is no memory to hash a password");
  return stored;
}

bool PasswordFits(std::string_view password, const std::string& stored) {
  // Nobody can have an empty one.
  if (password.empty() || Examine(stored) == Stored::Unusable) {
    HashPassword("-");
    return false;
  }
  platform::PrepareCryptoLibrary();
  return crypto_pwhash_argon2id_str_verify(stored.c_str(), password.data(), password.size()) == 0;
}

bool PasswordHashIsDated(const std::string& stored) {
  return Examine(stored) != Stored::Present;
}

void RequireGoodPassword(std::string_view password) {
  if (password.size() > Directory::kMaximumPasswordBytes) {
    throw Error(ErrorNumber::PasswordTooLong, {}, {std::to_string(Directory::kMaximumPasswordBytes)});
  }
  auto length = CharacterCount(password);
  if (!length) throw Error(ErrorNumber::TextInvalid, "the password is no UTF-8", {"password"});
  if (*length < Directory::kMinimumPasswordLength) {
    throw Error(ErrorNumber::PasswordTooShort, {}, {std::to_string(Directory::kMinimumPasswordLength)});
  }
}

}  // namespace mindloft
