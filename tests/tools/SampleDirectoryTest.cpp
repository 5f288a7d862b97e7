#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "backend/directory/FoldedText.h"
#include "backend/directory/SqliteDirectory.h"
#include "backend/errors/Error.h"
#include "tests/support/TemporaryFolder.h"
#include "tools/SampleDirectory.h"
#include "tools/SampleUsers.h"

namespace mindloft::test {
namespace {

/// A sample directory, logged in to.
struct Sample {
  Sample(const std::filesystem::path& file, SampleOptions options) {
    const auto password = MakeSampleDirectory(file, options);
    directory = SqliteDirectory::Open(file);
    session = directory->Login("admin", password);
  }
  std::vector<UserRecord> Users(Collection collection = Collection::Users, ObjectId scope = 0) const {
    Query query;
    query.collection = collection;
    query.scope = scope;
    return directory->UserPage(session, query, 0, 10'000);
  }
  std::vector<GroupRecord> Groups(ObjectId domain) const {
    Query query;
    query.collection = Collection::DomainGroups;
    query.scope = domain;
    return directory->GroupPage(session, query, 0, 10'000);
  }
  std::vector<DomainRecord> Domains() const {
    Query query;
    query.collection = Collection::Domains;
    return directory->DomainPage(session, query, 0, 10'000);
  }
  /// Everything that is made from the seed; the administrator's login time is not.
  std::string Everything() const {
    std::string text;
    for (const auto& user : Users()) {
      text += user.name + '|' + user.fullName + '|' + user.department + '|' + user.email + '|' +
              user.telephone + '|' + user.description + (user.enabled ? "|1\n" : "|0\n");
    }
    for (const auto& domain : Domains()) {
      text += domain.name + '\n';
      for (const auto& user : Users(Collection::DomainUsers, domain.id)) text += user.name + ' ';
      for (const auto& group : Groups(domain.id)) {
        text += '\n' + group.name + ": ";
        for (const auto& user : Users(Collection::GroupMembers, group.id)) text += user.name + ' ';
      }
    }
    return text;
  }

  std::unique_ptr<SqliteDirectory> directory;
  SessionId session = 0;
};

TEST(SampleDirectoryTest, ASeedMakesTheSameDirectoryAgain) {
  const TemporaryFolder folder;
  const SampleOptions options{.users = 500, .domains = 4, .groups = 3, .seed = 42, .overwrite = false};
  auto other = options;
  other.seed = 43;
  const Sample first(folder / "1", options), second(folder / "2", options), third(folder / "3", other);
  EXPECT_EQ(first.Everything(), second.Everything());
  EXPECT_NE(first.Everything(), third.Everything());
  EXPECT_EQ(first.directory->Check(), std::vector<std::string>());
}

TEST(SampleDirectoryTest, HoldsWhatWasAskedFor) {
  const TemporaryFolder folder;
  const Sample sample(folder / "s",
                      {.users = 700, .domains = 20, .groups = 12, .seed = 1, .overwrite = false});
  EXPECT_EQ(sample.Users().size(), 700u);
  ASSERT_EQ(sample.Domains().size(), 20u);
  bool disabled = false;
  for (const auto& domain : sample.Domains()) {
    disabled |= domain.disabled;
    const auto users = sample.Users(Collection::DomainUsers, domain.id).size();
    EXPECT_GE(users, 80u);
    EXPECT_LE(users, 400u);
    const auto groups = sample.Groups(domain.id);
    ASSERT_EQ(groups.size(), 13u);
    for (const auto& group : groups) {
      if (group.kind == AdministratorsGroup) continue;
      EXPECT_GT(sample.Users(Collection::GroupMembers, group.id).size(), 0u) << group.name;
    }
  }
  EXPECT_TRUE(disabled);
  EXPECT_EQ(sample.directory->Check(), std::vector<std::string>());
}

TEST(SampleDirectoryTest, SmallestOnesAndFailures) {
  const TemporaryFolder folder;
  for (const std::int64_t users : {1, 2, 4, 5}) {
    const Sample sample(folder / "s",
                        {.users = users, .domains = 1, .groups = 1, .seed = 0, .overwrite = true});
    EXPECT_EQ(static_cast<std::int64_t>(sample.Users().size()), users);
    EXPECT_EQ(sample.directory->Check(), std::vector<std::string>());
  }
  EXPECT_THROW(MakeSampleDirectory(folder / "s", {}), Error);
  EXPECT_THROW(MakeSampleDirectory(folder / "s" / "below-a-file", {}), Error);
  std::filesystem::remove(folder / "s");
  std::filesystem::remove(folder / "s-wal");
  std::filesystem::remove(folder / "s-shm");
  EXPECT_TRUE(std::filesystem::is_empty(folder.Path()));
}

TEST(SampleUsersTest, LoginNamesAreUniqueAndPlain) {
  SampleUsers users(9);
  std::set<std::string> names;
  std::set<std::string> initials;
  for (int i = 0; i < 20'000; ++i) {
    const auto& user = users.Next();
    EXPECT_TRUE(names.insert(FoldedText(user.name)).second) << user.name;
    EXPECT_EQ(user.name.find_first_not_of("abcdefghijklmnopqrstuvwxyz.0123456789"), std::string::npos)
        << user.name;
    initials.insert(user.fullName.substr(0, 2));
  }
  // Names begin with the letters of many scripts.
  for (const char* start : {"A", "Ł", "Е", "Θ", "א", "أ"}) {
    EXPECT_TRUE(std::any_of(initials.begin(), initials.end(), [&](const auto& text) {
      return text.starts_with(start);
    })) << start;
  }
}

}  // namespace
}  // namespace mindloft::test
