#pragma once

#include <string>

namespace mindloft {

/// A new random password that the directory accepts: letters, digits and signs that are on every keyboard and
/// cannot be taken for each other, at least one of each. At least 100 bits. The caller wipes it (WipeText).
std::string GeneratePassword();

}  // namespace mindloft
