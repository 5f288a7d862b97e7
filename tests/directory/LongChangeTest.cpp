#include "tests/directory/DirectoryFixture.h"

namespace mindloft::test {
namespace {

/// A domain with some hundred users, half of them in a group.
class LongChangeTest : public DirectoryFixture {
 protected:
  LongChangeTest() {
    source_ = AddDomain("Source");
    group_ = AddGroup(source_.id, "Group", 9);
    std::vector<ObjectId> half;
    for (int i = 0; i < kUsers; ++i) {
      users_.push_back(AddUser("u" + std::to_string(i)).id);
      if (i % 2) half.push_back(users_.back());
    }
    ChangeMember(Membership::DomainUsers, source_.id, users_, {});
    ChangeMember(Membership::GroupMembers, group_.id, half, {});
    source_ = directory_->FindDomain(admin_, source_.id).value();
  }
  std::int64_t Count(Collection collection, ObjectId scope) {
    return directory_->Count(admin_, {.collection = collection, .scope = scope});
  }
  std::string State() {
    auto info = directory_->Info();
    std::string text;
    for (auto number :
         {info.users, info.domains, info.groups, info.groupMembers, info.domainUsers, info.changes}) {
      text += std::to_string(number) + ' ';
    }
    return text;
  }

  static constexpr int kUsers = 600;
  DomainRecord source_;
  GroupRecord group_;
  std::vector<ObjectId> users_;
};

TEST_F(LongChangeTest, ReportsProgressAndLeavesNothingWhenCancelled) {
  const ObjectId everybody = AddGroup(source_.id, "Everybody").id;
  ChangeMember(Membership::GroupMembers, everybody, users_, {});
  const std::string before = State();
  std::vector<ObjectVersion> all;
  for (ObjectId id : users_) all.push_back({id, 1});
  struct {
    const char* name;
    std::function<void(const Progress&)> run;
  } const cases[] = {
      {"delete users", [&](const Progress& p) { directory_->DeleteUsers(admin_, all, p); }},
      {"delete groups",
       [&](const Progress& p) {
         directory_->DeleteGroups(
             admin_, {Now(Membership::GroupMembers, everybody), Now(Membership::GroupMembers, group_.id)}, p);
       }},
      {"copy",
       [&](const Progress& p) {
         directory_->CreateDomain(admin_, {.name = "Copy"}, {source_.id, true, true, true}, p);
       }},
      {"delete domain",
       [&](const Progress& p) {
         directory_->DeleteDomain(admin_, {source_.id, source_.version}, p);
       }},
      {"take users out of the domain",
       [&](const Progress& p) {
         directory_->ChangeMembers(admin_,
                                   {Membership::DomainUsers, {source_.id, source_.version}, {}, users_}, p);
       }},
      {"add members",
       [&](const Progress& p) {
         directory_->ChangeMembers(admin_, {Membership::RoleMembers, {4, 1}, users_, {}}, p);
       }},
  };
  for (const auto& [name, run] : cases) {
    SCOPED_TRACE(name);
    std::int64_t last = -1, total = 0;
    int calls = 0;
    auto cancel = [&](std::int64_t done, std::int64_t rows) {
      EXPECT_GT(done, last);
      last = done;
      total = rows;
      // The window behind the progress bar is painted meanwhile: it sees the change half done.
      directory_->UserPage(admin_, {}, 0, 5);
      directory_->Count(admin_, {.collection = Collection::Domains});
      return ++calls < 3;
    };
    EXPECT_EQ(NumberOf([&, run = run] { run(cancel); }), ErrorNumber::Cancelled);
    EXPECT_EQ(calls, 3);
    EXPECT_GE(total, kUsers);
    EXPECT_EQ(State(), before);
    EXPECT_EQ(directory_->Count(admin_, {}), kUsers + 1);
    EXPECT_EQ(directory_->Count(admin_, {.collection = Collection::Domains}), 1);
    EXPECT_EQ(NumberOf([&, run = run] {
                run([&](std::int64_t, std::int64_t) {
                  AddUser("in between");
                  return true;
                });
              }),
              ErrorNumber::DirectoryBusy)
        << "no change within a change";
  }
  EXPECT_EQ(directory_->Check(), std::vector<std::string>());
  std::int64_t last = 0;
  directory_->DeleteGroups(admin_, {Now(Membership::GroupMembers, everybody)},
                           [&](std::int64_t done, std::int64_t) {
                             last = done;
                             return true;
                           });
  EXPECT_EQ(last, kUsers + 1) << "the group and its members";
  EXPECT_EQ(Journal(1).at(0).action, "delete");
  EXPECT_EQ(directory_->Info().groupMembers, kUsers / 2);
  directory_->DeleteUsers(admin_, all, [&](std::int64_t done, std::int64_t) {
    last = done;
    return true;
  });
  EXPECT_EQ(last, kUsers);
  EXPECT_EQ(directory_->Info().users, 1);
  EXPECT_EQ(directory_->Info().domainUsers, 0);
  EXPECT_EQ(directory_->Check(), std::vector<std::string>());
}

TEST_F(LongChangeTest, ASelectionIsAskedForInOneCall) {
  const ObjectId gone = 99'999;
  directory_->ChangeUser(admin_, [&] {
    UserChange change;
    change.id = users_[3];
    change.version = 1;
    change.fullName = "changed";
    return change;
  }());
  struct {
    Collection collection;
    ObjectId scope;
    std::vector<ObjectId> asked;
    std::vector<std::pair<ObjectId, Version>> expected;
  } const cases[] = {
      {Collection::Users, 0, {users_[3], gone, users_[0]}, {{users_[3], 2}, {users_[0], 1}}},
      {Collection::GroupMembers,
       group_.id,
       {users_[0], users_[1], users_[3]},
       {{users_[1], 1}, {users_[3], 2}}},
      {Collection::UsersWithoutGroup, group_.id, {users_[0], users_[1]}, {{users_[0], 1}}},
      {Collection::DomainGroups,
       source_.id,
       {gone, group_.id},
       {{group_.id, directory_->FindGroup(admin_, group_.id)->version}}},
      {Collection::DomainGroups, gone, {group_.id}, {}},
      {Collection::Domains, 0, {source_.id}, {{source_.id, source_.version}}},
      {Collection::Users, 0, {}, {}},
  };
  for (const auto& [collection, scope, asked, expected] : cases) {
    SCOPED_TRACE(static_cast<int>(collection));
    std::vector<std::pair<ObjectId, Version>> found;
    for (const auto& object : directory_->VersionsIn(admin_, collection, scope, asked))
      found.emplace_back(object.id, object.version);
    EXPECT_EQ(found, expected);
  }
  EXPECT_EQ(NumberOf([&] { directory_->VersionsIn(admin_, Collection::Journal, 0, {1}); }),
            ErrorNumber::TypeMismatch);
  const auto groups = directory_->FindGroups(admin_, {group_.id, gone});
  ASSERT_EQ(groups.size(), 1u);
  EXPECT_EQ(groups[0].name, "Group");
}

TEST_F(LongChangeTest, CopiesWhatIsAskedFor) {
  struct {
    DomainCopy copy;
    std::int64_t groups, users, members;
  } const cases[] = {{{source_.id, false, false, false}, 1, 0, 0},
                     {{source_.id, true, false, false}, 2, 0, 0},
                     {{source_.id, false, true, false}, 1, kUsers, 0},
                     {{source_.id, true, true, true}, 2, kUsers, kUsers / 2}};
  int number = 0;
  for (const auto& [copy, groups, users, members] : cases) {
    SCOPED_TRACE(number);
    auto made = directory_->CreateDomain(admin_, {.name = "Copy " + std::to_string(number++)}, copy, {});
    EXPECT_EQ(Count(Collection::DomainGroups, made.id), groups);
    EXPECT_EQ(Count(Collection::DomainUsers, made.id), users);
    auto rows =
        directory_->GroupPage(admin_, {.collection = Collection::DomainGroups, .scope = made.id}, 0, 9);
    EXPECT_EQ(rows.at(0).kind, AdministratorsGroup);
    if (groups == 2) {
      EXPECT_EQ(rows.at(1).domainPrivileges, 9u);
      EXPECT_EQ(Count(Collection::GroupMembers, rows.at(1).id), members);
    }
  }
  EXPECT_EQ(NumberOf([&] {
              directory_->CreateDomain(admin_, {.name = "x"}, {source_.id, true, false, true}, {});
            }),
            ErrorNumber::TypeMismatch);
  EXPECT_EQ(directory_->Check(), std::vector<std::string>());
}

TEST_F(LongChangeTest, GroupsHoldUsersOfTheirDomainOnly) {
  auto stranger = AddUser("stranger");
  EXPECT_EQ(NumberOf([&] { AddMember(Membership::GroupMembers, group_.id, stranger.id); }),
            ErrorNumber::ObjectNotFound);
  ObjectId member = users_[1];
  ASSERT_TRUE(directory_->Contains(admin_, Collection::UserGroups, member, group_.id));
  ChangeMember(Membership::UserDomains, member, {}, {source_.id});
  EXPECT_FALSE(directory_->Contains(admin_, Collection::UserGroups, member, group_.id));
  EXPECT_TRUE(directory_->Contains(admin_, Collection::UsersWithoutDomain, source_.id, member));
  EXPECT_EQ(directory_->FindDomain(admin_, source_.id), source_) << "the other side's version stays";
  EXPECT_EQ(directory_->FindUser(admin_, member)->version, 2);
  EXPECT_EQ(directory_->Check(), std::vector<std::string>());
}

}  // namespace
}  // namespace mindloft::test
