#pragma once

#include <filesystem>
#include <memory>
#include <set>
#include <string>

#include "backend/corvane/Corvane.h"
#include "controls/explorer/ctExplorer.h"
#include "tests/mainwindow/OtherConsole.h"
#include "tests/support/gui/ModalDriver.h"
#include "tests/support/gui/PrivateServices.h"
#include "tests/support/gui/User.h"

namespace mindloft::test {

/// A directory with admin, who is logged in, anna and bob without rights, the domains Alpha (groups Readers,
/// Writers) and Beta (Authors); anna may use Alpha and is one of its Readers.
class UserDetailFixture : public PrivateServices {
 protected:
  static constexpr const char* kPassword = "a password for tests";

  void SetUp() override;
  void TearDown() override;
  void LogIn(const std::string& name, const std::string& password = kPassword);

  Corvane::Server& Server() { return *GetApplication()->Server(); }
  std::shared_ptr<Corvane::User> Named(const std::string& name);
  std::shared_ptr<Corvane::KDomain> Domain(const std::string& name);
  std::shared_ptr<Corvane::DGroup> Group(const std::string& domain, const std::string& name);
  /// Opens the editor on the user and lets the script use it; wxID_OK or wxID_CANCEL.
  int Edit(const std::shared_ptr<Corvane::User>& user, const ModalDriver::Script& script);
  /// As stored now.
  UserRecord Stored(const std::string& name) { return Named(name)->Stored(); }
  std::set<std::string> GroupsOf(const std::string& user);
  std::set<std::string> DomainsOf(const std::string& user);
  /// What stands in front of the first row of that name; the user clicks it.
  static void ClickCheck(const User& user, const char* list, const wxString& name);
  static std::int64_t RowOf(const User& user, const char* list, const wxString& name);
  static std::vector<wxString> Names(const User& user, const char* list);

  const std::filesystem::path file_ = folder_.Path() / "test.directory";
  ModalDriver modal_;
};

}  // namespace mindloft::test
