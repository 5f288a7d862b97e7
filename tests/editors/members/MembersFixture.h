#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "backend/corvane/Corvane.h"
#include "controls/explorer/ctExplorer.h"
#include "tests/support/gui/ModalDriver.h"
#include "tests/support/gui/PrivateServices.h"
#include "tests/support/gui/User.h"

namespace mindloft::test {

/// A directory with one domain "Alpha" whose users are those of kNames, a group "Readers" of the first two,
/// and a user "plain" without any right; admin is logged in. The names are of the worst kind.
class MembersFixture : public PrivateServices {
 protected:
  static constexpr const char* kPassword = "a password for tests";
  static const std::vector<std::string> kNames;

  void SetUp() override;
  void TearDown() override;
  void LogIn(const std::string& name);

  Corvane::Server& Server() { return *GetApplication()->Server(); }
  std::shared_ptr<Corvane::DGroup> Group(const std::string& name);
  std::shared_ptr<Corvane::Role> Role(const std::string& name);
  wxString IdOf(const std::string& userName);
  /// The names of a collection's users, sorted as the directory sorts them.
  static std::vector<std::string> Names(const std::shared_ptr<Corvane::Users>& users);
  /// The names that a form's list shows.
  static std::vector<std::string> Listed(const User& user, const char* explorer = "ctUser");
  static ctExplorer& Explorer(const User& user, const char* name = "ctUser") {
    return user.Find<ctExplorer>(name);
  }
  /// Selects the rows of those users.
  static void Select(const User& user, const std::vector<std::string>& names,
                     const char* explorer = "ctUser");
  /// How many changes the journal holds.
  std::int64_t Changes();

  const std::filesystem::path file_ = folder_.Path() / "test.directory";
  std::string domainId_;
};

}  // namespace mindloft::test
