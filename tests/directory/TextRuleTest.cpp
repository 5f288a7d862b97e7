#include "tests/directory/DirectoryFixture.h"

namespace mindloft::test {
namespace {

std::string Repeat(const std::string& text, int times) {
  std::string all;
  while (times-- > 0) all += text;
  return all;
}

class TextRuleTest : public DirectoryFixture {
 protected:
  ErrorNumber Create(UserRecord user) {
    return NumberOf([&] { created_ = directory_->CreateUser(admin_, user, ""); });
  }
  UserRecord created_;
};

TEST_F(TextRuleTest, NamesAreCheckedAndTrimmed) {
  struct {
    std::string name;
    ErrorNumber expected;
    std::string stored;
  } const cases[] = {
      {"", ErrorNumber::NameMissing, ""},
      {"  \u3000\u00a0 ", ErrorNumber::NameMissing, ""},
      {"\u200b\u2060", ErrorNumber::NameMissing, ""},
      {"a\tb", ErrorNumber::TextInvalid, ""},
      {std::string("a\0b", 3), ErrorNumber::TextInvalid, ""},
      {"a\u007f", ErrorNumber::TextInvalid, ""},
      {"a\u0085", ErrorNumber::TextInvalid, ""},
      {"a\u2028", ErrorNumber::TextInvalid, ""},
      {"a\u202e"
       "nimda",
       ErrorNumber::TextInvalid, ""},
      {"a\u2066", ErrorNumber::TextInvalid, ""},
      {"a\xc3", ErrorNumber::TextInvalid, ""},
      {"a\xed\xa0\x80", ErrorNumber::TextInvalid, ""},
      {"  \xff", ErrorNumber::TextInvalid, ""},
      {Repeat("x", 101), ErrorNumber::TextTooLong, ""},
      {Repeat("\U0001F600", 100), ErrorNumber{}, Repeat("\U0001F600", 100)},
      {"\u3000 \u0645\u062d\u0645\u062f\u200f ", ErrorNumber{}, "\u0645\u062d\u0645\u062f\u200f"},
      {"o'brien; DROP TABLE user", ErrorNumber{}, "o'brien; DROP TABLE user"},
      {"ADMIN", ErrorNumber::NameExists, ""},
      {"\uff41dmin ", ErrorNumber::NameExists, ""},
  };
  for (const auto& [name, expected, stored] : cases) {
    EXPECT_EQ(Create({.name = name}), expected) << name;
    if (expected == ErrorNumber{}) {
      EXPECT_EQ(created_.name, stored);
      EXPECT_EQ(directory_->FindUser(admin_, created_.id), created_);
    }
  }
  EXPECT_EQ(directory_->Count(admin_, {}), 4);
}

TEST_F(TextRuleTest, EveryFieldHasItsLimit) {
  std::string UserRecord::*const lines[] = {&UserRecord::fullName, &UserRecord::department,
                                            &UserRecord::email, &UserRecord::telephone};
  int names = 0;
  for (auto field : lines) {
    for (auto [text, expected] : {std::pair{Repeat("\u00fc", 200), ErrorNumber{}},
                                  {Repeat("\u00fc", 201), ErrorNumber::TextTooLong},
                                  {std::string("a\nb"), ErrorNumber::TextInvalid}}) {
      UserRecord user{.name = "user " + std::to_string(++names)};
      user.*field = text;
      EXPECT_EQ(Create(user), expected) << text;
    }
  }
  EXPECT_EQ(Create({.name = "d1", .description = "line\r\n\tline"}), ErrorNumber{});
  EXPECT_EQ(created_.description, "line\r\n\tline");
  EXPECT_EQ(Create({.name = "d2", .description = Repeat("x", 2001)}), ErrorNumber::TextTooLong);
  EXPECT_EQ(Create({.name = "d3", .description = "\x01"}), ErrorNumber::TextInvalid);
  Error error =
      ErrorOf([&] { directory_->CreateUser(admin_, {.name = "d4", .email = Repeat("x", 201)}, ""); });
  EXPECT_EQ(error.Parameters(), (std::vector<std::string>{"email", "200"}));
}

TEST_F(TextRuleTest, OtherObjectsFollowTheSameRules) {
  auto domain = AddDomain("Domain");
  auto other = AddDomain("Other");
  AddGroup(domain.id, "Group");
  EXPECT_NO_THROW(AddGroup(other.id, "Group")) << "unique within a domain only";
  const std::pair<std::function<void()>, ErrorNumber> cases[] = {
      {[&] { AddDomain("DOMAIN"); }, ErrorNumber::NameExists},
      {[&] { AddDomain(" "); }, ErrorNumber::NameMissing},
      {[&] { AddGroup(domain.id, "gROUP"); }, ErrorNumber::NameExists},
      {[&] { AddGroup(domain.id, "administrators"); }, ErrorNumber::NameExists},
      {[&] { AddGroup(domain.id, "g\x02"); }, ErrorNumber::TextInvalid},
      {[&] { AddGroup(domain.id, "g", 64); }, ErrorNumber::TypeMismatch},
      {[&] { AddGroup(99, "g"); }, ErrorNumber::ObjectNotFound},
      {[&] { directory_->CreateStyle(admin_, {.name = "plain"}); }, ErrorNumber::NameExists},
      {[&] { directory_->CreateDomain(admin_, {.name = "d", .style = 99}, {}, {}); },
       ErrorNumber::ObjectNotFound},
      {[&] {
         directory_->StoreUserConfiguration(admin_, {0, "<a>\xff</a>"});
       },
       ErrorNumber::TextInvalid},
      {[&] { directory_->UserPage(admin_, {.collection = Collection::Roles}, 0, 1); },
       ErrorNumber::TypeMismatch},
  };
  int index = 0;
  for (const auto& [work, expected] : cases) EXPECT_EQ(NumberOf(work), expected) << "case " << index++;
}

}  // namespace
}  // namespace mindloft::test
