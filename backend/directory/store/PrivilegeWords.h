#pragma once

#include <cstdint>
#include <string>

namespace mindloft {

/// System privileges in words: "Manage users; delete users". Empty for none.
std::string PrivilegeWords(std::uint32_t sysPrivileges);

}  // namespace mindloft
