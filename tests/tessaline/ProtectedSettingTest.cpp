#include <gmock/gmock.h>

#include "backend/errors/Error.h"
#include "backend/tessaline/ProtectedSetting.h"
#include "backend/tessaline/Text.h"
#include "tests/support/gui/PrivateServices.h"

namespace mindloft::test {
namespace {

using Tessaline::Setting;
using testing::HasSubstr;
using testing::Not;

constexpr auto kUser = platform::RegistryRoot::CurrentUser;
constexpr const char* kKey = "Software\\Ordwell\\Mindloft\\Settings";
constexpr const char* kSecret = "pass \U0001F511 w\"ord\\";

/// A secret store that fails as it is told.
class BrokenSecrets : public platform::SecretStore {
 public:
  enum class Fault { Refuses, Forgets, GivesAnother };
  explicit BrokenSecrets(Fault fault) : fault_(fault) {}
  std::string Protect(const std::string&) override {
    if (fault_ == Fault::Refuses) throw Error(ErrorNumber::SecretNotProtected, "refused");
    return "token";
  }
  std::optional<std::string> Reveal(const std::string&) override {
    return fault_ == Fault::GivesAnother ? std::optional<std::string>("another") : std::nullopt;
  }
  void Forget(const std::string&) noexcept override {}

 private:
  Fault fault_;
};

class ProtectedSettingTest : public PrivateServices {
 protected:
  void StoreClear(const std::string& text) { registry_->Set(kUser, kKey, "LoginPassword", text); }
  std::optional<platform::RegistryValue> Clear() const {
    return registry_->Get(kUser, kKey, "LoginPassword");
  }
  std::string Password() const { return ToUtf8(GetResource().GetSetting(Setting::LoginPassword)); }
  std::string WholeRegistry() const {
    std::string all;
    for (const auto& [name, value] : registry_->Values(kUser, kKey)) {
      if (const auto* text = std::get_if<std::string>(&value)) all += name + "=" + *text + "\n";
    }
    return all;
  }
  std::size_t SecretsKept() const {
    const std::filesystem::path folder = folder_ / "secrets";
    if (!std::filesystem::exists(folder)) return 0;
    const std::filesystem::directory_iterator entries(folder);
    return static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
  }
};

TEST_F(ProtectedSettingTest, IsStoredProtectedChangedAndRemoved) {
  for (const char* text : {kSecret, "another"}) {
    GetResource().SetSetting(Setting::LoginPassword, ToWx(text));
    EXPECT_EQ(Password(), text);
    EXPECT_EQ(GetResource().LoginPassword().Reader()(), text);
    EXPECT_THAT(WholeRegistry(), Not(HasSubstr(text)));
    EXPECT_EQ(SecretsKept(), 1u) << "nothing of an old password is left behind";
  }
  RestartServices();
  EXPECT_EQ(Password(), "another");
  GetResource().SetSetting(Setting::LoginPassword, "");
  EXPECT_EQ(Password(), "");
  EXPECT_EQ(SecretsKept(), 0u);
  EXPECT_THAT(LoggedText(), Not(HasSubstr("another")));
}

TEST_F(ProtectedSettingTest, AClearOneIsTakenOverOnceAndCountsBeforeTheProtectedOne) {
  for (const char* text : {kSecret, "set by hand later"}) {
    StoreClear(text);
    EXPECT_EQ(GetResource().LoginPassword().Reader()(), text) << "reading ahead changes nothing";
    EXPECT_TRUE(Clear());
    EXPECT_EQ(Password(), text);
    EXPECT_FALSE(Clear());
    EXPECT_EQ(Password(), text);
    EXPECT_THAT(WholeRegistry(), Not(HasSubstr(text)));
  }
  EXPECT_EQ(SecretsKept(), 1u);
}

TEST_F(ProtectedSettingTest, AFailureNeverLosesThePassword) {
  using Fault = BrokenSecrets::Fault;
  for (const auto fault : {Fault::Refuses, Fault::Forgets, Fault::GivesAnother}) {
    StoreClear(kSecret);
    secrets_ = std::make_shared<BrokenSecrets>(fault);
    RestartServices();
    EXPECT_EQ(Password(), kSecret);
    EXPECT_EQ(Clear(), platform::RegistryValue(std::string(kSecret)));
    EXPECT_THAT(LoggedText(), HasSubstr("could not be protected"));
    EXPECT_THROW(GetResource().SetSetting(Setting::LoginPassword, "new"), Error);
    EXPECT_EQ(Password(), kSecret) << "the old one is still there";
  }
}

TEST_F(ProtectedSettingTest, ADamagedOrForeignTokenIsNoPassword) {
  for (const char* token : {"file:", "file:../../registry", "file:00112233445566778899aabbccddeeff",
                            "dpapi:zz", "service:../x", "nonsense", "dpapi:00"}) {
    registry_->Set(kUser, kKey, "LoginPasswordProtected", std::string(token));
    EXPECT_EQ(Password(), "") << token;
  }
  registry_->Set(kUser, kKey, "LoginPasswordProtected", platform::OtherRegistryType());
  EXPECT_EQ(Password(), "");
}

TEST_F(ProtectedSettingTest, AMachinesPasswordIsReadOnlyWhereItIsAskedFor) {
  registry_->Set(platform::RegistryRoot::LocalMachine, kKey, "LoginPassword", std::string("all"));
  EXPECT_EQ(GetResource().GetSetting(Setting::LoginPassword), "");
  EXPECT_EQ(GetResource().GetSetting(Setting::LoginPassword, true), "all");
}

}  // namespace
}  // namespace mindloft::test
