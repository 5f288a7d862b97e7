#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "backend/corvane/Corvane.h"
#include "backend/errors/Error.h"
#include "tests/support/TemporaryFolder.h"

namespace mindloft::test {

inline constexpr const char* kAdministrator = "root";
inline constexpr const char* kPassword = "correct horse";

/// A fresh directory file with its first administrator, and a console logged in to it.
class CorvaneFixture : public testing::Test {
 protected:
  CorvaneFixture();

  /// Another console on the same file, not logged in.
  std::unique_ptr<Corvane::Application> NewConsole() const;
  static bool LogIn(Corvane::Application& console, const std::string& name = kAdministrator,
                    const std::string& password = kPassword);
  /// A stored user of that login name.
  std::shared_ptr<Corvane::User> AddUser(const std::string& name, const std::string& password = {});
  /// A stored domain of that name.
  std::shared_ptr<Corvane::KDomain> AddDomain(const std::string& name);

  TemporaryFolder folder_;
  std::filesystem::path file_;
  std::unique_ptr<Corvane::Application> console_;
  std::shared_ptr<Corvane::Server> server_;
};

/// The number of the error that the action throws; Unexpected stands for none too.
template <typename Action>
ErrorNumber NumberOf(Action&& action) {
  try {
    action();
  } catch (const Error& error) {
    return error.Number();
  }
  ADD_FAILURE() << "no error";
  return ErrorNumber::Unexpected;
}

}  // namespace mindloft::test
