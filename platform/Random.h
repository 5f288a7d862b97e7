#pragma once

#include <cstddef>
#include <string>

namespace mindloft::platform {

/// Random bytes fit for keys and salts.
std::string RandomBytes(std::size_t count);

/// 16 bytes of a new GUID from the platform; empty when it gives none.
std::string NewGuidBytes();

}  // namespace mindloft::platform
