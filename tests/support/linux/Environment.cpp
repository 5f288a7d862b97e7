#include "tests/support/Environment.h"

#include <cstdlib>

namespace mindloft::test {

void SetEnvironment(const std::string& name, const std::string& value) {
  setenv(name.c_str(), value.c_str(), 1);
}

}  // namespace mindloft::test
