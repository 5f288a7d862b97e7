#pragma once

#include <string>

namespace mindloft::test {

/// Sets a variable of this process's environment, for itself and the programs that it starts.
void SetEnvironment(const std::string& name, const std::string& value);

}  // namespace mindloft::test
