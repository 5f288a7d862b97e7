#include "tests/support/Environment.h"

#include <cstdlib>

namespace mindloft::test {

void SetEnvironment(const std::string& name, const std::string& value) {
  _putenv_s(name.c_str(), value.c_str());
}

}  // namespace mindloft::test
