#include "tests/directory/DirectoryFixture.h"

namespace mindloft::test {
namespace {

/// A change, what it needs of the system privileges (any of them) and of the domain privileges.
struct Operation {
  const char* name;
  std::uint32_t system, domain;
  std::function<void()> run;
};

class RightsTest : public DirectoryFixture {
 protected:
  RightsTest() {
    probe_ = AddUser("probe", kPassword);
    session_ = directory_->Login("probe", kPassword);
    domain_ = AddDomain("Domain");
    AddMember(Membership::DomainUsers, domain_.id, probe_.id);
    group_ = AddGroup(domain_.id, "Probe's group");
    AddMember(Membership::GroupMembers, group_.id, probe_.id);
    for (int bit = 0; bit < 8; ++bit) {
      std::string number = std::to_string(1 << bit);
      Sql("INSERT INTO role VALUES (" + std::to_string(100 + bit) + ", 1, 'only " + number + "', 'only " +
          number + "', 0, " + number + ")");
    }
    Sql("INSERT INTO role_member VALUES (107, " + std::to_string(administrator_.id) + ")");
  }

  /// The probe holds this system privilege and these domain privileges and nothing else.
  void Grant(int bit, std::uint32_t domainPrivileges) {
    Sql("DELETE FROM role_member WHERE user = " + std::to_string(probe_.id));
    if (bit >= 0) {
      Sql("INSERT INTO role_member VALUES (" + std::to_string(100 + bit) + ", " + std::to_string(probe_.id) +
          ")");
    }
    Sql("UPDATE grp SET privileges = " + std::to_string(domainPrivileges) +
        " WHERE id = " + std::to_string(group_.id));
  }

  std::string NewName() { return "name " + std::to_string(++names_); }
  std::vector<Operation> Operations();

  UserRecord probe_;
  SessionId session_ = 0;
  DomainRecord domain_;
  GroupRecord group_;
  int names_ = 0;
};

template <typename Change, typename Record>
Change ChangeOf(const Record& record) {
  Change change;
  change.id = record.id;
  change.version = record.version;
  return change;
}

std::vector<Operation> RightsTest::Operations() {
  auto members = [this](Membership membership, auto owner, auto member) {
    return [=, this] {
      ObjectId id = owner();
      MembershipChange change{membership, Now(membership, id), {member()}, {}};
      directory_->ChangeMembers(session_, change, {});
    };
  };
  auto domain = [this] { return domain_.id; };
  auto user = [this] { return AddUser(NewName()).id; };
  auto groupUser = [this] {
    ObjectId id = AddUser(NewName()).id;
    AddMember(Membership::DomainUsers, domain_.id, id);
    return id;
  };
  auto group = [this] { return AddGroup(domain_.id, NewName()).id; };
  auto role = [] { return ObjectId{4}; };
  return {
      {"create user", ManageUsers, 0,
       [=, this] { directory_->CreateUser(session_, {.name = NewName()}, ""); }},
      {"change user", ManageUsers, 0,
       [this] {
         auto change = ChangeOf<UserChange>(AddUser(NewName()));
         change.description = "new";
         directory_->ChangeUser(session_, change);
       }},
      {"set password", ManageUsers, 0,
       [this] {
         auto record = AddUser(NewName());
         directory_->SetPassword(session_, {record.id, record.version}, kPassword);
       }},
      {"rename oneself", ManageUsers, 0,
       [this] {
         auto change = ChangeOf<UserChange>(directory_->CurrentUser(session_));
         change.name = NewName();
         directory_->ChangeUser(session_, change);
       }},
      {"delete user", DeleteUsers, 0,
       [this] {
         auto record = AddUser(NewName());
         directory_->DeleteUsers(session_, {{record.id, record.version}}, {});
       }},
      {"role members", ManageRoles, 0, members(Membership::RoleMembers, role, user)},
      {"user roles", ManageRoles, 0, members(Membership::UserRoles, user, role)},
      {"create domain", CreateDomains, 0,
       [this] { directory_->CreateDomain(session_, {.name = NewName()}, {}, {}); }},
      {"change domain", ChangeDomains, ChangeDomain,
       [this] {
         auto change = ChangeOf<DomainChange>(directory_->FindDomain(admin_, domain_.id).value());
         change.description = NewName();
         directory_->ChangeDomain(session_, change);
       }},
      {"delete domain", DeleteDomains, 0,
       [this] {
         auto record = AddDomain(NewName());
         directory_->DeleteDomain(session_, {record.id, record.version}, {});
       }},
      {"domain users", ChangeDomains, ManageDomainUsers, members(Membership::DomainUsers, domain, user)},
      {"user domains", ChangeDomains, ManageDomainUsers, members(Membership::UserDomains, user, domain)},
      {"group members", ChangeDomains, ManageDomainGroups,
       members(Membership::GroupMembers, group, groupUser)},
      {"user groups", ChangeDomains, ManageDomainGroups, members(Membership::UserGroups, groupUser, group)},
      {"create group", ChangeDomains, ManageDomainGroups,
       [this] { directory_->CreateGroup(session_, {.domain = domain_.id, .name = NewName()}); }},
      {"change group", ChangeDomains, ManageDomainGroups,
       [this] {
         auto change = ChangeOf<GroupChange>(AddGroup(domain_.id, NewName()));
         change.description = "new";
         directory_->ChangeGroup(session_, change);
       }},
      {"delete group", ChangeDomains, ManageDomainGroups,
       [this] {
         auto record = AddGroup(domain_.id, NewName());
         directory_->DeleteGroups(session_, {{record.id, record.version}}, {});
       }},
      {"create style", ManageStyles, 0, [this] { directory_->CreateStyle(session_, {.name = NewName()}); }},
      {"change style", ManageStyles, 0,
       [this] {
         auto change = ChangeOf<StyleChange>(directory_->CreateStyle(admin_, {.name = NewName()}));
         change.definition = "<style/>";
         directory_->ChangeStyle(session_, change);
       }},
      {"delete style", ManageStyles, 0,
       [this] {
         auto record = directory_->CreateStyle(admin_, {.name = NewName()});
         directory_->DeleteStyle(session_, {record.id, record.version});
       }},
      {"read journal", ReadJournal, 0,
       [this] { directory_->JournalPage(session_, {.collection = Collection::Journal}, 0, 1); }},
      {"count journal", ReadJournal, 0,
       [this] { directory_->Count(session_, {.collection = Collection::Journal}); }},
  };
}

TEST_F(RightsTest, EachChangeNeedsItsPrivilegeAndNoOther) {
  auto operations = Operations();
  for (int bit = -1; bit < 8; ++bit) {
    Grant(bit, 0);
    std::uint32_t held = bit < 0 ? 0 : 1u << bit;
    for (const auto& operation : operations) {
      auto expected = operation.system & held ? ErrorNumber{} : ErrorNumber::AccessDenied;
      EXPECT_EQ(NumberOf(operation.run), expected) << operation.name << " with " << held;
    }
  }
}

TEST_F(RightsTest, DomainPrivilegesCountInTheirDomainOnly) {
  auto operations = Operations();
  for (std::uint32_t held : {0, 1, 2, 4, 8, 16}) {
    Grant(-1, held);
    EXPECT_EQ(directory_->DomainPrivileges(session_, domain_.id), held);
    for (const auto& operation : operations) {
      auto expected = operation.domain & held ? ErrorNumber{} : ErrorNumber::AccessDenied;
      EXPECT_EQ(NumberOf(operation.run), expected) << operation.name << " with domain privilege " << held;
    }
  }
  Grant(-1, AllDomainPrivileges);
  domain_ = AddDomain("Another domain");
  for (const auto& operation : operations) {
    EXPECT_EQ(NumberOf(operation.run), ErrorNumber::AccessDenied) << operation.name << " elsewhere";
  }
}

TEST_F(RightsTest, EverybodyReadsAndKeepsTheirOwnParticulars) {
  Grant(-1, 0);
  EXPECT_GE(directory_->Count(session_, {}), 2);
  EXPECT_EQ(directory_->SysPrivileges(session_, administrator_.id), AllSysPrivileges);
  auto change = ChangeOf<UserChange>(directory_->CurrentUser(session_));
  change.fullName = "Probe";
  change.telephone = "1";
  auto stored = directory_->ChangeUser(session_, change);
  EXPECT_EQ(stored.fullName, "Probe");
  stored = directory_->SetPassword(session_, {stored.id, stored.version}, "another long password");
  EXPECT_NE(directory_->Login("probe", "another long password"), 0u);
  auto disable = ChangeOf<UserChange>(stored);
  disable.enabled = false;
  EXPECT_EQ(NumberOf([&] { directory_->ChangeUser(session_, disable); }), ErrorNumber::AccessDenied);
}

}  // namespace
}  // namespace mindloft::test
