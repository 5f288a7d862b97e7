#include "tests/corvane/CorvaneFixture.h"

namespace mindloft::test {
namespace {

using ConnectionTest = CorvaneFixture;

TEST_F(ConnectionTest, WrongNamesAndPasswordsAreFalse) {
  const auto user = AddUser("hugo", "long password");
  user->SetEnabled(false);
  user->Update();
  auto other = NewConsole();
  EXPECT_FALSE(LogIn(*other, "nobody", kPassword));
  EXPECT_FALSE(LogIn(*other, kAdministrator, "Correct horse"));
  EXPECT_FALSE(LogIn(*other, "hugo", "long password"));
  EXPECT_FALSE(other->Connection()->IsLoggedIn());
  EXPECT_FALSE(other->Connection()->CurrentUser());
  EXPECT_EQ(NumberOf([&] { other->Server()->Users()->Count(); }), ErrorNumber::NotLoggedIn);
}

TEST_F(ConnectionTest, ObjectsEndWithTheirLogin) {
  const auto users = server_->Users();
  const auto user = AddUser("ida");
  const auto context = server_->KDomains()->Item(AddDomain("Domain")->Id());
  const auto view = users->View();
  const auto config = console_->Connection()->UserConfig();
  const auto refused = [&] {
    user->SetFullName("Ida");
    EXPECT_EQ(NumberOf([&] { user->Update(); }), ErrorNumber::NotLoggedIn);
    EXPECT_EQ(NumberOf([&] { users->Item(user->Id()); }), ErrorNumber::NotLoggedIn);
    EXPECT_EQ(NumberOf([&] { view.Page(0, 1); }), ErrorNumber::NotLoggedIn);
    EXPECT_EQ(NumberOf([&] { context->HasPrivilege(1); }), ErrorNumber::NotLoggedIn);
    EXPECT_EQ(NumberOf([&] { config->SetValue("a/@b", "c"); }), ErrorNumber::NotLoggedIn);
  };
  console_->Connection()->Logout();
  console_->Connection()->Logout();
  refused();
  // A later login does not wake them up; it might be somebody else's.
  ASSERT_TRUE(LogIn(*console_));
  refused();
  EXPECT_EQ(server_->Users()->Item(user->Id())->FullName(), "");
}

TEST_F(ConnectionTest, TheLanguageIsTheLogins) {
  constexpr int kChinese = 2052;
  const auto connection = console_->Connection();
  connection->SetLanguage(kChinese, {});
  EXPECT_EQ(connection->Language(), kChinese);
  ASSERT_TRUE(LogIn(*console_));
  EXPECT_EQ(connection->Language(), 0) << "another login";
  connection->Logout();
  connection->SetLanguage(kChinese, {});
  EXPECT_EQ(connection->Language(), 0) << "nobody's";
}

TEST_F(ConnectionTest, ALoginEndsTheOneBefore) {
  AddUser("jan", "long password");
  const auto users = server_->Users();
  ASSERT_TRUE(LogIn(*console_, "jan", "long password"));
  EXPECT_EQ(console_->Connection()->CurrentUser()->Name(), "jan");
  EXPECT_EQ(NumberOf([&] { users->Count(); }), ErrorNumber::NotLoggedIn);
  EXPECT_FALSE(LogIn(*console_, "jan", "wrong password"));
  EXPECT_FALSE(console_->Connection()->IsLoggedIn());
}

TEST_F(ConnectionTest, OnlyTheDirectoryOfThisComputerIsReached) {
  struct Case {
    int mode;
    const char* server;
    const char* address;
    const char* unreachable;  ///< the server that the message names; nothing: reached
  };
  for (const auto& [mode, server, address, unreachable] :
       {Case{1, "", "", nullptr}, Case{1, "(LOCAL)", "", nullptr}, Case{1, " (local) ", "", nullptr},
        Case{1, "elsewhere", "", "elsewhere"}, Case{1, "local", "", "local"},
        Case{2, "(local)", "http://server", "http://server"}, Case{0, "", "", ""}}) {
    auto connection = NewConsole()->Connection();
    connection->SetConnectMode(mode);
    connection->SetConfigurationServer(server);
    connection->SetWebAddress(address);
    try {
      EXPECT_TRUE(connection->Login(kAdministrator, kPassword));
      EXPECT_FALSE(unreachable) << server;
    } catch (const Error& error) {
      EXPECT_EQ(error.Number(), ErrorNumber::ServerUnreachable);
      ASSERT_TRUE(unreachable) << server;
      EXPECT_EQ(error.Parameters().at(0), unreachable);
    }
  }
}

TEST_F(ConnectionTest, OpensAnewForEachTargetAndKeepsWhatFailedLoginsOpened) {
  int opened = 0;
  const auto real = Corvane::EmbeddedDirectoryProvider(file_);
  Corvane::Application console([&](const Corvane::ConnectionTarget& target) {
    ++opened;
    return real(target);
  });
  const auto connection = console.Connection();
  connection->SetConnectMode(1);
  EXPECT_FALSE(connection->Login("nobody", kPassword));
  EXPECT_TRUE(connection->Login(kAdministrator, kPassword));
  EXPECT_EQ(opened, 1);
  connection->SetConfigurationServer("(local)");
  EXPECT_TRUE(connection->Login(kAdministrator, kPassword));
  EXPECT_EQ(opened, 2);
  connection->Logout();
  server_.reset();
  console_.reset();
  // Nothing holds the file now: it can be put away, and its absence is noticed.
  std::filesystem::rename(file_, folder_ / "away");
  for (const char* ending : {"-wal", "-shm"}) std::filesystem::remove(file_.string() + ending);
  EXPECT_EQ(NumberOf([&] { connection->Login(kAdministrator, kPassword); }), ErrorNumber::DirectoryNotFound);
}

}  // namespace
}  // namespace mindloft::test
