#pragma once

#include <string>
#include <string_view>

namespace mindloft {

/// A salted Argon2id hash of the password with the present cost, in the PHC string format
/// ("$argon2id$v=19$m=7168,t=5,p=1$salt$hash").
std::string HashPassword(std::string_view password);

/// Whether the password belongs to the stored hash. An empty or unreadable one never fits, after the same
/// work as a real comparison.
bool PasswordFits(std::string_view password, const std::string& stored);

/// Whether the hash was made with another cost than the present one.
bool PasswordHashIsDated(const std::string& stored);

/// Throws PasswordTooShort, PasswordTooLong or TextInvalid (broken UTF-8).
void RequireGoodPassword(std::string_view password);

}  // namespace mindloft
