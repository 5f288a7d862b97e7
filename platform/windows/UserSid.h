#pragma once

#include <string>

namespace mindloft::platform {

/// The security identifier ("S-1-5-...") of the user as whom this process runs: unlike the name, it tells
/// users of different domains apart. The user's name when the system does not tell it.
std::string UserSid();

}  // namespace mindloft::platform
