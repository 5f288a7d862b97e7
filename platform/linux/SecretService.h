#pragma once

#include <optional>
#include <string>

namespace mindloft::platform {

// The desktop's secret service (a keyring or a password safe). Its library is loaded at the first call: who
// keeps no secret does not wait for it. Where there is no service, or it refuses, nothing is kept or found.

bool KeepInSecretService(const std::string& id, const std::string& secret);
std::optional<std::string> FindInSecretService(const std::string& id);
void DropFromSecretService(const std::string& id);

}  // namespace mindloft::platform
