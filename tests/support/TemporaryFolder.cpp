#include "tests/support/TemporaryFolder.h"

#include <cstdio>
#include <random>

namespace mindloft::test {

TemporaryFolder::TemporaryFolder() {
  std::random_device random;
  char name[40];
  std::snprintf(name, sizeof name, "mindloft-test-%08x%08x", random(), random());
  path_ = std::filesystem::temp_directory_path() / name;
  std::filesystem::create_directory(path_);
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

}  // namespace mindloft::test
