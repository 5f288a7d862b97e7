#include "platform/Clock.h"
#include "tests/directory/DirectoryFixture.h"

namespace mindloft::test {
namespace {

using JournalTest = DirectoryFixture;

TEST_F(JournalTest, TellsEachChangeWithBeforeAndAfter) {
  platform::FakeClock clock(1'717'234'567'890);
  auto user =
      directory_->CreateUser(admin_, {.name = "ann", .fullName = "Ann \"A\"\\", .description = "a\nb"}, "");
  UserChange change;
  change.id = user.id;
  change.version = 1;
  change.fullName = "Anna";
  change.enabled = false;
  user = directory_->ChangeUser(admin_, change);
  user = directory_->SetPassword(admin_, {user.id, user.version}, "a very secret password");
  auto domain = AddDomain("Domain");
  AddMember(Membership::DomainUsers, domain.id, user.id);
  auto group = AddGroup(domain.id, "Group", 3);
  ChangeMember(Membership::UserGroups, user.id, {group.id, 1}, {});
  ChangeMember(Membership::GroupMembers, group.id, {}, {user.id});
  auto style = directory_->StylePage(admin_, {.collection = Collection::Styles}, 0, 1).at(0);
  DomainChange styled;
  styled.id = domain.id;
  styled.version = 2;
  styled.style = style.id;
  directory_->ChangeDomain(admin_, styled);
  directory_->DeleteStyle(admin_, {style.id, style.version});
  user = directory_->FindUser(admin_, user.id).value();
  directory_->DeleteUsers(admin_, {{user.id, user.version}}, {});

  const std::string id = std::to_string(user.id), gid = std::to_string(group.id);
  const std::string ann = "{\"id\":" + id + ",\"name\":\"ann\"}";
  struct {
    const char *action, *kind, *name;
    std::string before, after;
  } const expected[] = {
      {"create", "user", "ann", "",
       R"({"name":"ann","fullName":"Ann \"A\"\\","department":"","email":"","telephone":"",)"
       R"("description":"a\u000ab","enabled":true})"},
      {"change", "user", "ann", R"({"fullName":"Ann \"A\"\\","enabled":true})",
       R"({"fullName":"Anna","enabled":false})"},
      {"password", "user", "ann", "", ""},
      {"create", "domain", "Domain", "", R"({"name":"Domain","description":"","style":0,"disabled":false})"},
      {"members", "domain users", "Domain", "", "{\"members\":[" + ann + "]}"},
      {"create", "group", "Group", "",
       R"({"domain":1,"kind":0,"name":"Group","description":"","domainPrivileges":3})"},
      {"members", "user", "ann", "",
       "{\"groups\":[{\"id\":" + gid + R"(,"name":"Group"},{"id":1,"name":"Administrators"}]})"},
      {"members", "group", "Group", "{\"members\":[" + ann + "]}", ""},
      {"change", "domain", "Domain", R"({"style":0})", "{\"style\":" + std::to_string(style.id) + "}"},
      {"change", "domain", "Domain", "{\"style\":" + std::to_string(style.id) + "}", R"({"style":0})"},
      {"delete", "style", style.name.c_str(), "*", ""},
      {"delete", "user", "ann",
       R"({"name":"ann","fullName":"Anna","department":"","email":"","telephone":"","description":"a\u000ab",)"
       R"("enabled":false,"roles":[],"domains":[{"id":1,"name":"Domain"}],)"
       R"("groups":[{"id":1,"name":"Administrators"}]})",
       ""},
  };
  auto rows = Journal(std::ssize(expected));
  ASSERT_EQ(rows.size(), std::size(expected));
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const auto& row = rows[rows.size() - 1 - i];
    const auto& want = expected[i];
    SCOPED_TRACE(i);
    EXPECT_EQ(row.action, want.action);
    EXPECT_EQ(row.kind, want.kind);
    EXPECT_EQ(row.name, want.name);
    EXPECT_EQ(row.who, "admin");
    EXPECT_EQ(row.when, 1'717'234'567'890);
    if (want.before != "*") {
      EXPECT_EQ(row.before, want.before);
    }
    EXPECT_EQ(row.after, want.after);
  }
  EXPECT_EQ(
      SqlText("SELECT count(*) FROM journal WHERE before || after LIKE '%secret%' OR before || after LIKE "
              "'%argon%'"),
      "0");
}

TEST_F(JournalTest, IsReadFromTheNewestInWindows) {
  for (int i = 0; i < 30; ++i) AddUser("user" + std::to_string(i));
  const Query all{.collection = Collection::Journal};
  std::int64_t count = directory_->Count(admin_, all);
  auto rows = Journal();
  ASSERT_EQ(std::ssize(rows), count);
  EXPECT_EQ(rows[0].name, "user29");
  for (std::int64_t first : {std::int64_t{0}, std::int64_t{7}, count - 2, count}) {
    auto page = directory_->JournalPage(admin_, all, first, 5);
    auto size = std::min<std::int64_t>(5, count - first);
    ASSERT_EQ(std::ssize(page), size);
    for (std::int64_t i = 0; i < size; ++i) {
      EXPECT_EQ(page[i], rows[first + i]);
      EXPECT_EQ(directory_->PositionOf(admin_, all, page[i].id), first + i);
    }
  }
  const Query some{.collection = Collection::Journal, .filter = "SER1"};
  EXPECT_EQ(directory_->Count(admin_, some), 11);
  EXPECT_EQ(directory_->JournalPage(admin_, some, 0, 1).at(0).name, "user19");
  EXPECT_EQ(directory_->JournalPage(admin_, some, 10, 5).at(0).name, "user1");
}

}  // namespace
}  // namespace mindloft::test
