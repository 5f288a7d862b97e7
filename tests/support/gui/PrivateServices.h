#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "backend/tessaline/Services.h"
#include "tests/support/TemporaryFolder.h"

namespace mindloft::test {

/// Each test gets services of its own: an empty registry in memory, secrets and a log in a temporary folder,
/// the languages of the source tree, in English.
class PrivateServices : public testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;
  /// Makes the services anew over the same registry, as the next start of the program would.
  void RestartServices();

  /// The languages of the source tree.
  static std::filesystem::path LanguageFolder();
  /// All lines that the test has logged.
  std::string LoggedText() const;

  TemporaryFolder folder_;
  std::shared_ptr<platform::RegistryStore> registry_;
  std::shared_ptr<platform::SecretStore> secrets_;
};

}  // namespace mindloft::test
