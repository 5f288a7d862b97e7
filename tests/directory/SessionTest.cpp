#include "backend/directory/session/LoginThrottle.h"
#include "backend/directory/session/PasswordHash.h"
#include "platform/Clock.h"
#include "tests/directory/DirectoryFixture.h"

namespace mindloft::test {
namespace {

using SessionTest = DirectoryFixture;

TEST_F(SessionTest, RefusesEveryWrongLoginAlike) {
  AddUser("nopassword");
  auto locked = AddUser("locked", kPassword);
  UserChange disable;
  disable.id = locked.id;
  disable.version = locked.version;
  disable.enabled = false;
  directory_->ChangeUser(admin_, disable);
  struct {
    std::string name, password;
  } const cases[] = {{"admin", "wrong password"},
                     {"nobody", kPassword},
                     {"locked", kPassword},
                     {"nopassword", ""},
                     {"", ""},
                     {"admin", std::string(100'000, 'x')},
                     {"\xff\xfe", kPassword}};
  platform::FakeClock clock(1'000'000);
  for (const auto& [name, password] : cases) {
    clock.Advance(60'000);
    Error error = ErrorOf([&] { directory_->Login(name, password); });
    EXPECT_EQ(error.Number(), ErrorNumber::LoginFailed) << name;
    EXPECT_TRUE(error.Description().empty() && error.Parameters().empty()) << name;
  }
}

TEST_F(SessionTest, RecordsTheLoginWithoutChangingTheVersion) {
  platform::FakeClock clock(1'700'000'000'123);
  SessionId session = directory_->Login("ADMIN", kPassword);
  UserRecord user = directory_->CurrentUser(session);
  EXPECT_EQ(user.lastLogin, 1'700'000'000'123);
  EXPECT_EQ(user.version, administrator_.version);
  JournalRecord row = Journal(1).at(0);
  EXPECT_EQ(row.action, "login");
  EXPECT_EQ(row.who, "admin");
  EXPECT_EQ(row.object, user.id);
}

TEST_F(SessionTest, EndsWithLogoutDeletionAndDisabling) {
  EXPECT_EQ(NumberOf([&] { directory_->CurrentUser(12345); }), ErrorNumber::NotLoggedIn);
  EXPECT_EQ(NumberOf([&] { directory_->Count(0, {}); }), ErrorNumber::NotLoggedIn);
  AddUser("ann", kPassword);
  AddUser("bob", kPassword);
  SessionId ann = directory_->Login("ann", kPassword), bob = directory_->Login("bob", kPassword);
  Sql("UPDATE user SET enabled = 0 WHERE name = 'ann'");
  EXPECT_EQ(NumberOf([&] { directory_->CurrentUser(ann); }), ErrorNumber::AccountDisabled);
  Sql("UPDATE user SET enabled = 1 WHERE name = 'ann'");
  EXPECT_EQ(NumberOf([&] { directory_->CurrentUser(ann); }), ErrorNumber::NotLoggedIn);
  auto record = directory_->FindUserByName(admin_, "BOB").value();
  directory_->DeleteUsers(admin_, {{record.id, record.version}}, {});
  EXPECT_EQ(NumberOf([&] { directory_->CurrentUser(bob); }), ErrorNumber::NotLoggedIn);
  directory_->Logout(admin_);
  EXPECT_EQ(NumberOf([&] { directory_->CurrentUser(admin_); }), ErrorNumber::NotLoggedIn);
}

TEST_F(SessionTest, APreparedLoginAnswersOnlyItsOwnQuestion) {
  const auto journal = Journal(1).at(0).id;
  directory_->PrepareLogin("admin", kPassword);
  EXPECT_EQ(Journal(1).at(0).id, journal) << "nobody has logged in yet";
  EXPECT_EQ(NumberOf([&] { directory_->Login("admin", "another password"); }), ErrorNumber::LoginFailed);
  directory_->PrepareLogin("ADMIN", kPassword);
  EXPECT_NE(directory_->Login("admin", kPassword), 0u);
  directory_->PrepareLogin("admin", "wrong password");
  EXPECT_EQ(NumberOf([&] { directory_->Login("admin", "wrong password"); }), ErrorNumber::LoginFailed);

  // The password is changed between the two.
  directory_->PrepareLogin("admin", kPassword);
  directory_->SetPassword(admin_, {administrator_.id, administrator_.version}, "quite another password");
  EXPECT_EQ(NumberOf([&] { directory_->Login("admin", kPassword); }), ErrorNumber::LoginFailed);
  EXPECT_NE(directory_->Login("admin", "quite another password"), 0u);

  directory_->PrepareLogin("nobody", kPassword);
  EXPECT_EQ(NumberOf([&] { directory_->Login("nobody", kPassword); }), ErrorNumber::LoginFailed);
}

TEST_F(SessionTest, SlowsFailuresDownAlsoAfterReopening) {
  platform::FakeClock clock(5'000'000);
  auto fail = [&] { directory_->Login("admin", "wrong"); };
  for (int i = 0; i < 3; ++i) EXPECT_EQ(NumberOf(fail), ErrorNumber::LoginFailed);
  Error delayed = ErrorOf([&] { directory_->Login("admin", kPassword); });
  EXPECT_EQ(delayed.Number(), ErrorNumber::LoginDelayed);
  EXPECT_EQ(delayed.Parameters(), std::vector<std::string>{"1"});
  auto again = SqliteDirectory::Open(file_);
  EXPECT_EQ(NumberOf([&] { again->Login("other", kPassword); }), ErrorNumber::LoginDelayed);
  clock.Advance(1000);
  EXPECT_NE(again->Login("admin", kPassword), 0u);
  EXPECT_EQ(NumberOf(fail), ErrorNumber::LoginFailed);
  EXPECT_NE(directory_->Login("admin", kPassword), 0u) << "a success starts the count anew";
}

TEST(LoginThrottleTest, DoublesTheDelayUpToThirtySeconds) {
  platform::FakeClock clock(0);
  LoginThrottle throttle;
  throttle.Failed("a");
  throttle.Failed("a");
  for (int expected : {1, 2, 4, 8, 16, 30, 30}) {
    EXPECT_NO_THROW(throttle.Require("a"));
    throttle.Failed("a");
    EXPECT_EQ(ErrorOf([&] { throttle.Require("a"); }).Parameters().at(0), std::to_string(expected));
    clock.Advance(expected * 1000 - 1);
    EXPECT_EQ(ErrorOf([&] { throttle.Require("a"); }).Parameters().at(0), "1");
    clock.Advance(1);
  }
  throttle.Failed("a");
  throttle.Succeeded("b");
  EXPECT_NO_THROW(throttle.Require("b"));
  EXPECT_EQ(NumberOf([&] { throttle.Require("a"); }), ErrorNumber::LoginDelayed)
      << "another's success does not free this name";
}

TEST(PasswordHashTest, KnowsItsFormatAndItsCost) {
  // The reference implementation's answer for another cost: "password", "somesalt", t=2, m=65536, p=1.
  const std::string known =
      "$argon2id$v=19$m=65536,t=2,p=1$c29tZXNhbHQ$CTFhFdXPJO1aFaMaO6Mm5c8y7cJHAph8ArZWb2GRPPc";
  EXPECT_TRUE(PasswordFits("password", known));
  EXPECT_FALSE(PasswordFits("Password", known));
  EXPECT_TRUE(PasswordHashIsDated(known));
  const std::string own = HashPassword(
      "pass\xC3\xB6"
      "words");
  EXPECT_EQ(own.rfind("$argon2id$v=19$m=7168,t=5,p=1$", 0), 0u);
  EXPECT_TRUE(
      PasswordFits("pass\xC3\xB6"
                   "words",
                   own));
  EXPECT_FALSE(PasswordHashIsDated(own));
  EXPECT_NE(own, HashPassword("pass\xC3\xB6"
                              "words"));
  for (const char* broken :
       {"", "x", "$argon2id$v=19$m=4294967295,t=2,p=1$c29tZXNhbHQ$CTFhFdXPJO1aFaMaO6Mm5Q",
        "$argon2id$v=19$m=7168,t=5,p=1$c29tZXNhbHQ$", "$argon2id$v=19$m=8,t=0,p=1$!$!"}) {
    EXPECT_FALSE(PasswordFits("", broken)) << broken;
  }
}

TEST_F(SessionTest, RenewsADatedHashAtLogin) {
  const std::string dated =
      "$argon2id$v=19$m=65536,t=2,p=1$c29tZXNhbHQ$CTFhFdXPJO1aFaMaO6Mm5c8y7cJHAph8ArZWb2GRPPc";
  AddUser("old");
  Sql("UPDATE user SET password = '" + dated + "' WHERE name = 'old'");
  for (int i = 0; i < 2; ++i) directory_->Login("old", "password");
  EXPECT_EQ(SqlText("SELECT password FROM user WHERE name = 'old'").rfind("$argon2id$v=19$m=7168,", 0), 0u);
}

TEST_F(SessionTest, RequiresPasswordsOfSomeLength) {
  auto user = AddUser("ann");
  auto set = [&](const std::string& password) {
    return ErrorOf([&] { user = directory_->SetPassword(admin_, {user.id, user.version}, password); });
  };
  EXPECT_EQ(set("").Number(), ErrorNumber::PasswordTooShort);
  Error tooShort = set("\xD8\xA7\xD8\xA7\xD8\xA7\xD8\xA7\xD8\xA7\xD8\xA7");  // 6 characters in 12 bytes
  EXPECT_EQ(tooShort.Number(), ErrorNumber::PasswordTooShort);
  EXPECT_EQ(tooShort.Parameters(), std::vector<std::string>{"12"});
  EXPECT_EQ(set(std::string(1025, 'x')).Number(), ErrorNumber::PasswordTooLong);
  EXPECT_EQ(set(std::string(20, '\xff')).Number(), ErrorNumber::TextInvalid);
  EXPECT_EQ(set(std::string(1024, 'x')).Number(), ErrorNumber{});
  EXPECT_NE(directory_->Login("ann", std::string(1024, 'x')), 0u);
}

}  // namespace
}  // namespace mindloft::test
