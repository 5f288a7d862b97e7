#include "platform/Clock.h"
#include "tests/directory/DirectoryFixture.h"

namespace mindloft::test {
namespace {

/// Two consoles on one file.
class ConflictTest : public DirectoryFixture {
 protected:
  ConflictTest() : other_(SqliteDirectory::Open(file_)) {
    AddUser("eve", kPassword);
    AddMember(Membership::RoleMembers, 1, directory_->FindUserByName(admin_, "eve").value().id);
    eve_ = other_->Login("eve", kPassword);
  }
  std::unique_ptr<SqliteDirectory> other_;
  SessionId eve_ = 0;
};

TEST_F(ConflictTest, TellsWhoChangedTheObjectAndWhen) {
  auto user = AddUser("ann");
  auto domain = AddDomain("Domain");
  auto group = AddGroup(domain.id, "Group");
  auto style = directory_->CreateStyle(admin_, {.name = "Style"});
  RoleRecord role = directory_->FindRole(admin_, 4).value();
  auto change = [](auto renamed, const auto& record) {
    renamed.id = record.id;
    renamed.version = record.version;
    renamed.name = "changed " + record.name;
    return renamed;
  };
  struct Case {
    std::string object;
    std::function<void(SqliteDirectory&, SessionId)> run;
  };
  const Case cases[] = {
      {"ann",
       [&](auto& d, auto s) {
         d.SetPassword(s, {user.id, user.version}, kPassword);
       }},
      {"Style", [&](auto& d, auto s) { d.ChangeStyle(s, change(StyleChange(), style)); }},
      {"Group", [&](auto& d, auto s) { d.ChangeGroup(s, change(GroupChange(), group)); }},
      {"Domain",
       [&](auto& d, auto s) {
         d.ChangeMembers(s, {Membership::DomainUsers, {domain.id, domain.version}, {user.id}, {}}, {});
       }},
      {role.name,
       [&](auto& d, auto s) {
         d.ChangeMembers(s, {Membership::RoleMembers, {role.id, role.version}, {user.id}, {}}, {});
       }},
      {"eve",
       [&](auto& d, auto) {
         d.StoreUserConfiguration(d.Login("eve", kPassword), {0, "<a/>"});
       }},
  };
  platform::FakeClock clock(1'717'234'567'000);
  for (const auto& [object, run] : cases) {
    run(*other_, eve_);
    clock.Advance(5000);
    std::string before = SqlText("SELECT count(*) FROM journal WHERE action <> 'login'");
    Error error = ErrorOf([&, run = run] { run(*directory_, admin_); });
    EXPECT_EQ(error.Number(), ErrorNumber::Conflict) << object;
    ASSERT_EQ(error.Parameters().size(), 3u) << object;
    EXPECT_NE(error.Parameters()[0].find(object), std::string::npos) << error.Parameters()[0];
    EXPECT_EQ(error.Parameters()[1], "eve") << object;
    EXPECT_EQ(error.Parameters()[2].substr(0, 14), "2024-06-01T09:") << object;
    EXPECT_EQ(SqlText("SELECT count(*) FROM journal WHERE action <> 'login'"), before) << object;
  }
}

TEST_F(ConflictTest, WhatIsGoneIsNotFound) {
  auto user = AddUser("ann");
  auto domain = AddDomain("Domain");
  auto group = AddGroup(domain.id, "Group");
  other_->DeleteUsers(eve_, {{user.id, user.version}}, {});
  other_->DeleteDomain(eve_, {domain.id, domain.version}, {});
  UserChange change;
  change.id = user.id;
  change.version = user.version;
  const std::function<void()> cases[] = {
      [&] { directory_->ChangeUser(admin_, change); },
      [&] {
        directory_->DeleteUsers(admin_, {{user.id, 1}}, {});
      },
      [&] {
        directory_->DeleteGroups(admin_, {{group.id, 1}}, {});
      },
      [&] {
        directory_->DeleteDomain(admin_, {domain.id, 1}, {});
      },
      [&] { AddMember(Membership::RoleMembers, 2, user.id); },
      [&] { AddMember(Membership::UserRoles, administrator_.id, 99); },
  };
  int index = 0;
  for (const auto& run : cases) {
    EXPECT_EQ(NumberOf(run), ErrorNumber::ObjectNotFound) << "case " << index++;
  }
  EXPECT_FALSE(directory_->FindUser(admin_, user.id));
  EXPECT_NE(AddUser("ann").id, user.id) << "identifiers are never used again";
}

TEST_F(ConflictTest, AChangeOfNothingWritesNothing) {
  auto user = AddUser("ann");
  std::string rows = SqlText("SELECT count(*) FROM journal");
  UserChange change;
  change.id = user.id;
  change.version = user.version;
  change.name = " ann ";
  change.enabled = true;
  EXPECT_EQ(directory_->ChangeUser(admin_, change), user);
  EXPECT_EQ(directory_->ChangeMembers(admin_, {Membership::UserRoles, {user.id, 1}, {}, {1, 99}}, {}), 1);
  EXPECT_EQ(SqlText("SELECT count(*) FROM journal"), rows);
  change.version = 7;
  EXPECT_EQ(NumberOf([&] { directory_->ChangeUser(admin_, change); }), ErrorNumber::Conflict);
}

TEST_F(ConflictTest, WindowsFollowTheOtherConsole) {
  const Query domains{.collection = Collection::Domains};
  EXPECT_EQ(directory_->Count(admin_, domains), 0);
  EXPECT_EQ(directory_->Count(admin_, {}), 2);
  other_->CreateDomain(eve_, {.name = "Zebra"}, {}, {});
  other_->CreateUser(eve_, {.name = "zoe"}, "");
  EXPECT_EQ(directory_->DomainPage(admin_, domains, 0, 9).at(0).name, "Zebra");
  EXPECT_EQ(directory_->UserPage(admin_, {}, 2, 9).at(0).name, "zoe");
  EXPECT_EQ(directory_->FindPrefix(admin_, {}, "ZO", 0), 2);
  AddDomain("Ant");
  EXPECT_EQ(other_->PositionOf(eve_, domains, 1), 1);
  EXPECT_EQ(other_->FindPrefix(eve_, domains, "z", 0), 1);
}

}  // namespace
}  // namespace mindloft::test
