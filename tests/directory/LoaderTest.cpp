#include <gtest/gtest.h>

#include <optional>

#include "IndexModel.h"
#include "backend/directory/DirectoryLoader.h"
#include "backend/directory/index/UserIndex.h"
#include "tests/support/TemporaryFolder.h"

namespace mindloft {
namespace {

class LoaderTest : public testing::Test {
 protected:
  LoaderTest() {
    auto connection = test::MakeEmptyTables(file_);
    sqlite::Database& database = *connection;
    UserRecord first;
    first.id = 1;
    first.name = first.fullName = "Zoe";
    test::StoreUser(database, first);
    database.Execute("UPDATE user SET name_key='zoe'; INSERT OR IGNORE INTO role VALUES(1,1,'r','r',0,0)");
  }
  std::int64_t Number(const std::string& sql) {
    sqlite::Database database(file_, SQLITE_OPEN_READONLY);
    sqlite::Statement select(database.Handle(), sql);
    return select.Step() ? select.Int(0) : -1;
  }
  static UserRecord User(std::string name) {
    UserRecord user;
    user.name = std::move(name);
    user.fullName = "Full " + user.name;
    user.email = user.name + "@example.com";
    user.enabled = false;
    return user;
  }

  test::TemporaryFolder folder_;
  std::filesystem::path file_ = folder_ / "loader.mdir";
};

TEST_F(LoaderTest, AddsBehindWhatIsThereAndBuildsTheIndex) {
  {
    DirectoryLoader loader(file_);
    DomainRecord domain;
    domain.name = "Ｄomain";
    auto domainId = loader.AddDomain(domain);
    GroupRecord group;
    group.domain = domainId;
    group.name = "Group";
    auto groupId = loader.AddGroup(group);
    for (int i = 0; i < 3000; ++i) {
      auto id = loader.AddUser(User("USER " + std::to_string(i)));
      loader.AddDomainUser(domainId, id);
      if (i % 3 == 0) loader.AddGroupMember(groupId, id);
    }
    loader.AddRoleMember(1, 2);
    loader.Finish();
  }
  sqlite::Database database(file_, SQLITE_OPEN_READWRITE);
  UserIndex index(database);
  EXPECT_EQ(index.Check(), std::vector<std::string>());
  EXPECT_EQ(index.Count({}), 3001);
  EXPECT_EQ(index.Page({.order = Order::FullName, .descending = true, .filter = {}}, 0, 1),
            std::vector<ObjectId>{1});
  EXPECT_EQ(index.Count({.collection = Collection::GroupMembers, .scope = 2, .filter = "user 1"}), 369);
  EXPECT_EQ(Number("SELECT count(*) FROM user WHERE name='USER 7' AND name_key='user 7' AND enabled=0 AND "
                   "password='' AND email='USER 7@example.com'"),
            1);
  EXPECT_EQ(Number("SELECT count(*) FROM grp WHERE kind=5"), 1);
  EXPECT_EQ(Number("SELECT count(*) FROM domain WHERE name_key='domain'"), 1);
  EXPECT_EQ(Number("SELECT count(*) FROM journal WHERE action='load' AND after LIKE '%3000%'"), 1);
  EXPECT_EQ(Number("SELECT count(*) FROM journal"), 1);
}

TEST_F(LoaderTest, KeepsNothingUnlessFinished) {
  {
    DirectoryLoader loader(file_);
    loader.AddUser(User("one"));
  }
  EXPECT_EQ(Number("SELECT count(*) FROM user"), 1);
}

TEST_F(LoaderTest, RefusesNamesThatExistAndObjectsThatDoNot) {
  DirectoryLoader loader(file_);
  try {
    loader.AddUser(User("ｚOE"));
    FAIL() << "the name exists";
  } catch (const Error& error) {
    EXPECT_EQ(error.Number(), ErrorNumber::NameExists);
    EXPECT_EQ(error.Parameters(), std::vector<std::string>{"ｚOE"});
  }
  GroupRecord group;
  group.name = "Group";
  group.domain = 77;
  EXPECT_THROW(loader.AddGroup(group), Error);
  DomainRecord domain;
  domain.name = "Domain";
  domain.style = 77;
  EXPECT_THROW(loader.AddDomain(domain), Error);
  EXPECT_THROW(loader.AddDomainUser(77, 1), Error);
  EXPECT_THROW(loader.AddGroupMember(77, 1), Error);
  EXPECT_THROW(loader.AddRoleMember(1, 77), Error);
  EXPECT_THROW(loader.AddRoleMember(1, -1), Error);
  // The refused rows leave no trace; the others count.
  loader.AddUser(User("other"));
  loader.Finish();
  sqlite::Database database(file_, SQLITE_OPEN_READWRITE);
  EXPECT_EQ(UserIndex(database).Check(), std::vector<std::string>());
  EXPECT_EQ(Number("SELECT count(*) FROM user"), 2);
}

}  // namespace
}  // namespace mindloft
