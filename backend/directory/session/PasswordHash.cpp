#include "backend/directory/session/PasswordHash.h"

#include <gcrypt.h>

#include <algorithm>
#include <cstdio>
#include <optional>

#include "backend/directory/Directory.h"
#include "backend/directory/session/Base64.h"
#include "backend/directory/store/TextRules.h"
#include "backend/errors/Error.h"
#include "platform/CryptoLibrary.h"
#include "platform/Random.h"

namespace mindloft {
namespace {

constexpr std::size_t kSaltBytes = 16;
constexpr std::size_t kHashBytes = 32;

struct Cost {
  unsigned long memory;  ///< KiB
  unsigned long passes;
  unsigned long lanes;
  bool operator==(const Cost&) const = default;
};

// One of the settings that OWASP's Password Storage Cheat Sheet recommends for Argon2id and holds to be of
// equal strength; this one takes the least time to log in, and the least memory.
constexpr Cost kPresentCost{7168, 5, 1};
// A damaged file must not make a login take a gigabyte or an hour.
constexpr Cost kGreatestCost{1024 * 1024, 64, 16};

struct PasswordRecord {
  Cost cost;
  std::string salt, hash;
};

void Require(gcry_error_t code) {
  if (code) throw Error(ErrorNumber::Unexpected, std::string("argon2;") + gcry_strerror(code));
}

std::string Argon2id(std::string_view password, const std::string& salt, const Cost& cost,
                     std::size_t length) {
  platform::PrepareCryptoLibrary();
  const unsigned long parameters[] = {static_cast<unsigned long>(length), cost.passes, cost.memory,
                                      cost.lanes};
  gcry_kdf_hd_t handle = nullptr;
  Require(gcry_kdf_open(&handle, GCRY_KDF_ARGON2, GCRY_KDF_ARGON2ID, parameters, 4, password.data(),
                        password.size(), salt.data(), salt.size(), nullptr, 0, nullptr, 0));
  std::string hash(length, '\0');
  gcry_error_t code = gcry_kdf_compute(handle, nullptr);
  if (!code) code = gcry_kdf_final(handle, hash.size(), hash.data());
  gcry_kdf_close(handle);
  Require(code);
  return hash;
}

std::optional<PasswordRecord> Parse(const std::string& stored) {
  PasswordRecord record;
  int read = 0;
  if (std::sscanf(stored.c_str(), "$argon2id$v=19$m=%lu,t=%lu,p=%lu$%n", &record.cost.memory,
                  &record.cost.passes, &record.cost.lanes, &read) != 3 ||
      read == 0) {
    return {};
  }
  auto middle = stored.find('$', static_cast<std::size_t>(read));
  if (middle == std::string::npos) return {};
  auto salt = FromBase64(std::string_view(stored).substr(read, middle - read));
  auto hash = FromBase64(std::string_view(stored).substr(middle + 1));
  const auto& [memory, passes, lanes] = record.cost;
  bool payable = lanes >= 1 && lanes <= kGreatestCost.lanes && passes >= 1 &&
                 passes <= kGreatestCost.passes && memory >= 8 * lanes && memory <= kGreatestCost.memory;
  if (!payable || !salt || salt->size() < 8 || !hash || hash->size() < 16 || hash->size() > 64) return {};
  record.salt = *salt;
  record.hash = *hash;
  return record;
}

bool SameBytes(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  unsigned difference = 0;
  for (std::size_t i = 0; i < a.size(); ++i) {
    difference |= static_cast<unsigned char>(a[i]) ^ static_cast<unsigned char>(b[i]);
  }
  return difference == 0;
}

}  // namespace

std::string HashPassword(std::string_view password) {
  std::string salt = platform::RandomBytes(kSaltBytes);
  char head[64];
  std::snprintf(head, sizeof head, "$argon2id$v=19$m=%lu,t=%lu,p=%lu$", kPresentCost.memory,
                kPresentCost.passes, kPresentCost.lanes);
  return head + ToBase64(salt) + '$' + ToBase64(Argon2id(password, salt, kPresentCost, kHashBytes));
}

bool PasswordFits(std::string_view password, const std::string& stored) {
  auto record = Parse(stored);
  // libgcrypt refuses an empty password, which nobody can have.
  if (!record || password.empty()) {
    Argon2id("-", std::string(kSaltBytes, '\0'), kPresentCost, kHashBytes);
    return false;
  }
  return SameBytes(Argon2id(password, record->salt, record->cost, record->hash.size()), record->hash);
}

bool PasswordHashIsDated(const std::string& stored) {
  auto record = Parse(stored);
  return !record || record->cost != kPresentCost;
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
