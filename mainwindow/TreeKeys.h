#pragma once

#include <wx/string.h>

namespace mindloft::keys {

// The fixed keys of tree nodes: the numbers of the texts that caption them. A node of a knowledge domain has
// the key under which the collection of domains holds it.
inline constexpr const char* kRoot = "59300";
inline constexpr const char* kDomains = "59301";
inline constexpr const char* kRoles = "59302";
inline constexpr const char* kUsers = "59303";
inline constexpr const char* kDomainGroups = "59304";
inline constexpr const char* kDomainUsers = "59305";
/// Stands for any domain node where a kind of node is asked for.
inline constexpr const char* kAnyDomain = "";

}  // namespace mindloft::keys
