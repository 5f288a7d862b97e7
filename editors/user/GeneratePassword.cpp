#include "editors/user/GeneratePassword.h"

#include <algorithm>
#include <string_view>

#include "backend/corvane/LocalDirectory.h"
#include "platform/Random.h"

namespace mindloft {
namespace {

constexpr std::string_view kKinds[] = {"ABCDEFGHJKLMNPQRSTUVWXYZ", "abcdefghijkmnopqrstuvwxyz", "23456789",
                                       "-+=.:!?"};
/// 64 characters are 6 bits each.
constexpr std::size_t kLength = 18;

/// One of the characters, all with the same chance: a byte past the last whole multiple is thrown again.
char RandomOf(std::string_view characters) {
  const std::size_t limit = 256 - 256 % characters.size();
  for (;;) {
    const auto byte = static_cast<unsigned char>(platform::RandomBytes(1).front());
    if (byte < limit) return characters[byte % characters.size()];
  }
}

bool HasEachKind(const std::string& password) {
  return std::all_of(std::begin(kKinds), std::end(kKinds), [&](std::string_view kind) {
    return password.find_first_of(kind) != std::string::npos;
  });
}

}  // namespace

std::string GeneratePassword() {
  std::string all;
  for (const std::string_view kind : kKinds) all += kind;
  const std::size_t length = std::max(kLength, static_cast<std::size_t>(Corvane::MinimumPasswordLength()));
  std::string password;
  do {
    password.clear();
    while (password.size() < length) password += RandomOf(all);
  } while (!HasEachKind(password));
  return password;
}

}  // namespace mindloft
