#include "backend/directory/Privileges.h"
#include "tests/directory/DirectoryFixture.h"

namespace mindloft::test {
namespace {

class GuardRailTest : public DirectoryFixture {
 protected:
  ObjectVersion Version(ObjectId user) { return Now(Membership::UserRoles, user); }
  void Disable(SessionId session, ObjectId user) {
    UserChange change;
    static_cast<ObjectVersion&>(change) = Version(user);
    change.enabled = false;
    directory_->ChangeUser(session, change);
  }
  static constexpr ObjectId kAdministrators = 1, kUserManagers = 2;
};

TEST_F(GuardRailTest, TheLastUserManagerStays) {
  // Neither a manager without a password nor a disabled one counts.
  auto helpless = AddUser("helpless");
  AddMember(Membership::RoleMembers, kUserManagers, helpless.id);
  auto locked = AddUser("locked", kPassword);
  AddMember(Membership::RoleMembers, kUserManagers, locked.id);
  Disable(admin_, locked.id);
  ObjectId admin = administrator_.id;
  EXPECT_EQ(NumberOf([&] { ChangeMember(Membership::RoleMembers, kAdministrators, {}, {admin}); }),
            ErrorNumber::LastUserManager);
  EXPECT_EQ(NumberOf([&] { ChangeMember(Membership::UserRoles, admin, {}, {kAdministrators}); }),
            ErrorNumber::LastUserManager);
  // Another user who may delete users, and may not manage them, tries it on the administrator.
  auto second = AddUser("second", kPassword);
  AddMember(Membership::RoleMembers, kUserManagers, second.id);
  SessionId session = directory_->Login("second", kPassword);
  Sql("UPDATE role SET privileges = 32 WHERE id = 2");
  EXPECT_EQ(NumberOf([&] { directory_->DeleteUsers(session, {Version(admin)}, {}); }),
            ErrorNumber::LastUserManager);
  EXPECT_TRUE(directory_->FindUser(admin_, admin));
  Sql("UPDATE role SET privileges = 48 WHERE id = 2");
  Sql("UPDATE role_member SET role = 3 WHERE role = 1");
  EXPECT_NO_THROW(directory_->DeleteUsers(session, {Version(admin)}, {})) << "a second manager is there";
  EXPECT_EQ(directory_->Check(), std::vector<std::string>());
}

TEST_F(GuardRailTest, ExchangingTheLastManagerInOneChangeWorks) {
  auto second = AddUser("second", kPassword);
  ChangeMember(Membership::RoleMembers, kAdministrators, {second.id}, {administrator_.id});
  EXPECT_EQ(directory_->SysPrivileges(admin_, administrator_.id), 0u);
  EXPECT_EQ(directory_->SysPrivileges(admin_, second.id), AllSysPrivileges);
}

TEST_F(GuardRailTest, OnesOwnAccountStays) {
  auto second = AddUser("second", kPassword);
  AddMember(Membership::RoleMembers, kAdministrators, second.id);
  EXPECT_EQ(NumberOf([&] {
              directory_->DeleteUsers(admin_, {Version(second.id), Version(administrator_.id)}, {});
            }),
            ErrorNumber::OwnAccount);
  EXPECT_TRUE(directory_->FindUser(admin_, second.id)) << "all or none";
  EXPECT_EQ(NumberOf([&] { Disable(admin_, administrator_.id); }), ErrorNumber::OwnAccount);
}

TEST_F(GuardRailTest, BuiltInGroupsStay) {
  auto domain = AddDomain("Domain");
  auto groups =
      directory_->GroupPage(admin_, {.collection = Collection::DomainGroups, .scope = domain.id}, 0, 9);
  ASSERT_EQ(groups.size(), 1u);
  GroupRecord group = groups[0];
  EXPECT_EQ(group.kind, AdministratorsGroup);
  EXPECT_TRUE(group.builtIn);
  auto ordinary = AddGroup(domain.id, "Ordinary");
  auto change = [&](auto set) {
    GroupChange changed;
    changed.id = group.id;
    changed.version = group.version;
    set(changed);
    return ErrorOf([&] { group = directory_->ChangeGroup(admin_, changed); });
  };
  Error refused = change([](GroupChange& c) { c.name = "Renamed"; });
  EXPECT_EQ(refused.Number(), ErrorNumber::BuiltInObject);
  EXPECT_EQ(refused.Parameters(), std::vector<std::string>{"Administrators"});
  EXPECT_EQ(change([](GroupChange& c) { c.domainPrivileges = 1; }).Number(), ErrorNumber::BuiltInObject);
  EXPECT_EQ(change([](GroupChange& c) { c.description = "Changed"; }).Number(), ErrorNumber{});
  EXPECT_EQ(change([](GroupChange& c) { c.name = "Administrators"; }).Number(), ErrorNumber{});
  EXPECT_EQ(
      NumberOf([&] {
        directory_->DeleteGroups(admin_, {{ordinary.id, ordinary.version}, {group.id, group.version}}, {});
      }),
      ErrorNumber::BuiltInObject);
  EXPECT_TRUE(directory_->FindGroup(admin_, ordinary.id)) << "all or none";
  EXPECT_EQ(
      NumberOf([&] { directory_->CreateGroup(admin_, {.domain = domain.id, .kind = 5, .name = "Second"}); }),
      ErrorNumber::BuiltInObject);
  Sql("UPDATE grp SET editable = 0 WHERE id = " + std::to_string(ordinary.id));
  group = ordinary;
  EXPECT_EQ(change([](GroupChange& c) { c.description = "x"; }).Number(), ErrorNumber::BuiltInObject);
}

TEST_F(GuardRailTest, CheckFindsWhatWentPastThem) {
  auto domain = AddDomain("Domain");
  auto user = AddUser("ann");
  std::string id = std::to_string(user.id);
  const std::pair<std::string, std::string> cases[] = {
      {"PRAGMA foreign_keys = 0; DELETE FROM grp WHERE domain = 1", "administrators group in domain Domain"},
      {"INSERT INTO grp VALUES (7, 1, 1, 0, 0, 1, 0, 'x', 'x', ''); INSERT INTO group_member VALUES (7, " +
           id + ")",
       "without access to the domain in group x"},
      {"PRAGMA foreign_keys = 0; INSERT INTO domain_user VALUES (99, " + id + ")",
       "missing row of \"domain\""},
      {"UPDATE user SET name_key = 'other' WHERE id = " + id, "name key"},
      {"DELETE FROM role_member", "may manage users"},
  };
  for (const auto& [sql, words] : cases) {
    std::vector<std::string> before = directory_->Check();
    Sql(sql);
    std::string all;
    for (const auto& line : directory_->Check()) all += line + "\n";
    EXPECT_NE(all.find(words), std::string::npos) << sql << " gives " << all;
  }
}

}  // namespace
}  // namespace mindloft::test
