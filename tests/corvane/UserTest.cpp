#include <algorithm>

#include "backend/corvane/IdList.h"
#include "tests/corvane/CorvaneFixture.h"

namespace mindloft::test {
namespace {

using UserTest = CorvaneFixture;

TEST_F(UserTest, PutsWaitForUpdate) {
  auto user = server_->Users()->Add();
  EXPECT_TRUE(user->IsNew());
  EXPECT_EQ(user->Id(), "");
  user->SetName("émile");
  user->SetFullName("Émile Ångström");
  user->SetDepartment("研究");
  user->SetEMail("emile@example.org");
  user->SetTelephone("+33 1 555");
  user->SetDescription("שלום");
  user->SetPassword("first password");
  EXPECT_EQ(server_->Users()->Count(), 1);
  user->Update();
  EXPECT_FALSE(user->IsNew());

  auto other = NewConsole();
  ASSERT_TRUE(LogIn(*other, "ÉMILE", "first password"));
  const auto seen = other->Connection()->CurrentUser();
  EXPECT_EQ(seen->Id(), user->Id());
  EXPECT_EQ(seen->FullName() + "|" + seen->Department() + "|" + seen->EMail() + "|" + seen->Telephone() +
                "|" + seen->Description(),
            "Émile Ångström|研究|emile@example.org|+33 1 555|שלום");

  const auto stored = server_->Users()->Item(user->Id());
  stored->SetFullName("Other");
  EXPECT_EQ(server_->Users()->Item(user->Id())->FullName(), "Émile Ångström");
  stored->CancelEdit(false);
  EXPECT_EQ(stored->FullName(), "Other");
  stored->CancelEdit(true);
  EXPECT_EQ(stored->FullName(), "Émile Ångström");
}

TEST_F(UserTest, ConflictKeepsThePutsAndTheOtherChange) {
  const auto mine = AddUser("carla");
  const auto theirs = server_->Users()->Item(mine->Id());
  theirs->SetDepartment("Theirs");
  theirs->Update();

  mine->SetFullName("Mine");
  EXPECT_EQ(NumberOf([&] { mine->Update(); }), ErrorNumber::Conflict);
  EXPECT_EQ(mine->FullName(), "Mine");
  EXPECT_EQ(server_->Users()->Item(mine->Id())->FullName(), "");

  // Without a put nothing is sent, so nothing can be in conflict.
  mine->CancelEdit(true);
  mine->Update();
  const auto again = server_->Users()->Item(mine->Id());
  again->SetFullName("Mine");
  again->Update();
  EXPECT_EQ(server_->Users()->Item(mine->Id())->Department(), "Theirs");
  EXPECT_EQ(server_->Users()->Item(mine->Id())->FullName(), "Mine");
}

TEST_F(UserTest, PasswordIsStoredAtOnceAndPutsStay) {
  const auto user = AddUser("dora");
  auto other = NewConsole();
  EXPECT_FALSE(LogIn(*other, "dora", ""));
  user->SetDescription("waiting");
  user->SetPassword("second password");
  EXPECT_TRUE(LogIn(*other, "dora", "second password"));
  EXPECT_EQ(server_->Users()->Item(user->Id())->Description(), "");
  EXPECT_EQ(NumberOf([&] { user->SetPassword("short"); }), ErrorNumber::PasswordTooShort);
  // The login has changed only what is no edit.
  user->Update();
  EXPECT_EQ(server_->Users()->Item(user->Id())->Description(), "waiting");
}

TEST_F(UserTest, MembershipsAreListsOfIdentifiersAndTheVersionFollows) {
  const auto user = AddUser("eve");
  const auto first = AddDomain("First"), second = AddDomain("Second");
  user->ChangeDomains(" " + first->Id() + " ;; " + second->Id() + ";", "");
  const auto administrators = first->DGroups()->OfKind(AdministratorsGroup);
  ASSERT_TRUE(administrators);
  user->ChangeGroups(administrators->Id(), "");
  const auto roles = server_->Roles()->View().Page(0, 100);
  const auto role = *std::find_if(roles.begin(), roles.end(), [](const auto& candidate) {
    return candidate.sysPrivileges == ReadJournal;
  });
  user->ChangeRoles(Corvane::IdText(role.id), "");
  EXPECT_EQ(user->DomainIds(), first->Id() + ";" + second->Id());
  EXPECT_EQ(user->GroupIds(), administrators->Id());
  EXPECT_EQ(user->RoleIds(), Corvane::IdText(role.id));
  EXPECT_TRUE(user->HasSysPrivilege(ReadJournal));
  EXPECT_FALSE(user->HasSysPrivilege(ReadJournal | DeleteUsers));

  user->SetFullName("Eve");
  user->Update();
  // Leaving a domain is leaving its groups.
  user->ChangeDomains("", first->Id());
  EXPECT_EQ(user->GroupIds(), "");
  EXPECT_EQ(user->DomainIds(), second->Id());

  const auto versionBefore = user->Stored().version;
  for (const char* list : {"x", "1;x", "-1", "0", "1 2", "1,2"}) {
    EXPECT_EQ(NumberOf([&] { user->ChangeRoles(list, ""); }), ErrorNumber::TypeMismatch) << list;
  }
  EXPECT_EQ(NumberOf([&] { user->ChangeRoles("99999999999999999999", ""); }), ErrorNumber::Overflow);
  user->ChangeRoles(" ; ", "");
  EXPECT_EQ(user->Stored().version, versionBefore);
}

TEST_F(UserTest, LongIdentifierListsAreReadPageByPage) {
  std::string list;
  for (int i = 1; i <= 100'000; ++i) list += std::to_string(i) + ";";
  const auto ids = Corvane::IdsFromList(list);
  ASSERT_EQ(ids.size(), 100'000u);
  EXPECT_EQ(ids.back(), 100'000);

  std::string members;
  for (int i = 0; i < 30; ++i) members += AddDomain("Domain " + std::to_string(100 + i))->Id() + ";";
  const auto user = AddUser("fred");
  user->ChangeDomains(members, "");
  EXPECT_EQ(user->DomainIds() + ";", members);
  EXPECT_EQ(server_->Users()->Add()->DomainIds(), "");
}

}  // namespace
}  // namespace mindloft::test
