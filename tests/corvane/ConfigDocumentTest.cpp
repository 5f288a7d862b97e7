#include "backend/directory/SqliteDirectory.h"
#include "tests/corvane/CorvaneFixture.h"

namespace mindloft::test {
namespace {

constexpr const char* kModify = "frmConfig/Configuration[@Name ='WorkingFolder']/@Value";
constexpr const char* kDescribe = "frmConfig/Configuration[@Name = 'WorkingFolder']/@Value";

class ConfigDocumentTest : public CorvaneFixture {
 protected:
  ConfigDocumentTest() : config_(console_->Connection()->UserConfig()) {}

  /// Stores a document past the object that is tested, as another program might.
  void StoreText(const std::string& xml) {
    const auto directory = SqliteDirectory::Open(file_);
    const auto session = directory->Login(kAdministrator, kPassword);
    auto configuration = directory->LoadUserConfiguration(session);
    configuration.xml = xml;
    directory->StoreUserConfiguration(session, configuration);
  }

  std::shared_ptr<Corvane::ConfigDocument> config_;
};

TEST_F(ConfigDocumentTest, BothExpressionsReachOneAttribute) {
  EXPECT_EQ(config_->Select(kDescribe, "preset").AsString(), "preset");
  config_->SetValue(kModify, "C:\\Work");
  EXPECT_EQ(config_->Select(kDescribe, "preset").AsString(), "C:\\Work");
  config_->SetValue(kDescribe, "");
  EXPECT_EQ(config_->Select(kModify, "preset").AsString(), "");

  // It is this user's document, whatever the console.
  AddUser("karl", "long password");
  auto other = NewConsole();
  ASSERT_TRUE(LogIn(*other));
  EXPECT_EQ(other->Connection()->UserConfig()->Select(kModify, "preset").AsString(), "");
  ASSERT_TRUE(LogIn(*other, "karl", "long password"));
  EXPECT_EQ(other->Connection()->UserConfig()->Select(kModify, "preset").AsString(), "preset");
}

TEST_F(ConfigDocumentTest, TwoConsolesLoseNothing) {
  auto other = NewConsole();
  ASSERT_TRUE(LogIn(*other));
  const auto theirs = other->Connection()->UserConfig();
  for (int i = 0; i < 5; ++i) {
    config_->SetValue("mine/@a" + std::to_string(i), "1");
    theirs->SetValue("theirs/@a" + std::to_string(i), "1");
  }
  for (int i = 0; i < 5; ++i) {
    EXPECT_EQ(theirs->Select("mine/@a" + std::to_string(i), "").AsString(), "1");
    EXPECT_EQ(config_->Select("theirs/@a" + std::to_string(i), "").AsString(), "1");
  }
}

TEST_F(ConfigDocumentTest, RefusedChangesLeaveTheStoredTextAlone) {
  const std::string damaged = "<UserConfiguration><a b='1'>";
  StoreText(damaged);
  EXPECT_EQ(NumberOf([&] { config_->SetValue(kModify, "x"); }), ErrorNumber::ConfigurationDamaged);
  EXPECT_EQ(NumberOf([&] { config_->Select(kModify, "x"); }), ErrorNumber::ConfigurationDamaged);
  const auto directory = SqliteDirectory::Open(file_);
  const auto session = directory->Login(kAdministrator, kPassword);
  EXPECT_EQ(directory->LoadUserConfiguration(session).xml, damaged);

  StoreText("<UserConfiguration/>");
  const auto version = directory->LoadUserConfiguration(session).version;
  EXPECT_EQ(NumberOf([&] { config_->SetValue("f/Configuration[@Name ='O'Brien']/@Value", "x"); }),
            ErrorNumber::InvalidExpression);
  EXPECT_EQ(NumberOf([&] { config_->SetValue(kModify, "\x02"); }), ErrorNumber::TextInvalid);
  EXPECT_EQ(NumberOf([&] { config_->SetValue(kModify, std::string(2'000'000, 'x')); }),
            ErrorNumber::TextTooLong);
  EXPECT_EQ(directory->LoadUserConfiguration(session).version, version);
}

}  // namespace
}  // namespace mindloft::test
