#include <chrono>
#include <future>
#include <map>

#include "app/AutoLogin.h"
#include "backend/tessaline/Text.h"
#include "tests/app/StartFixture.h"

namespace mindloft::test {
namespace {

using Tessaline::Setting;

class AutoLoginTest : public StartFixture {
 protected:
  void SetUp() override {
    StartFixture::SetUp();
    MakeDirectory();
  }

  /// Logs in with a new application and these settings over those that work.
  bool LogIn(const std::map<Setting, wxString>& settings) {
    targets_.clear();
    SetApplication(std::make_unique<Corvane::Application>(TracingServices().directories));
    SetAutoLogin("1");
    for (const auto& [setting, value] : settings) GetResource().SetSetting(setting, value);
    return AutoLogin();
  }

  static const std::map<Setting, wxString>& Web() {
    static const std::map<Setting, wxString> settings = {
        {Setting::ConnectMode, "2"},
        {Setting::WebServerURL, "http://web.example/a?HTTP:"},
        {Setting::ProxyEnabled, "0"},
        {Setting::WebTimeout, "77"},
        {Setting::SecureChannel, "0"}};
    return settings;
  }
  static std::map<Setting, wxString> WebWith(std::map<Setting, wxString> settings) {
    settings.insert(Web().begin(), Web().end());
    return settings;
  }
};

TEST_F(AutoLoginTest, TheLocalNetworkTakesServerAndPortFromTheSettings) {
  ASSERT_TRUE(LogIn({{Setting::ConfigurationServer, ToWx("höst")}, {Setting::ConfigurationPort, "123456"}}));
  ASSERT_EQ(targets_.size(), 1u);
  EXPECT_EQ(targets_[0], (Corvane::ConnectionTarget{1, "höst", 123456, ""}));
  EXPECT_EQ(GetConnection()->CurrentUser()->Name(), kUser);
}

TEST_F(AutoLoginTest, AnUnsetModeBecomesTheLocalNetworkAndIsSavedBack) {
  EXPECT_TRUE(LogIn({{Setting::ConnectMode, "0"}}));
  EXPECT_EQ(GetResource().GetSetting(Setting::ConnectMode), "1");
  // Also where the login then fails.
  EXPECT_FALSE(LogIn({{Setting::ConnectMode, " 0 "}, {Setting::ConfigurationServer, " "}}));
  EXPECT_EQ(GetResource().GetSetting(Setting::ConnectMode), "1");
}

TEST_F(AutoLoginTest, TheWebIsReachedOverTheSecureChannelWhenItIsWanted) {
  struct Case {
    const char *secure, *url, *reached;
  };
  for (const auto& one :
       {Case{"0", "http://web.example/a?HTTP:", "http://web.example/a?HTTP:"},
        Case{"1", "http://web.example/a?HTTP:", "HTTPS://web.example/a?HTTP:"}, Case{"1", "HTTP:", "HTTPS:"},
        Case{"1", "https://web.example/", "https://web.example/"},
        Case{" 1", "http://web.example/", "http://web.example/"},
        Case{"", "http://web.example/", "http://web.example/"}}) {
    ASSERT_TRUE(LogIn(WebWith({{Setting::SecureChannel, one.secure}, {Setting::WebServerURL, one.url}})));
    ASSERT_EQ(targets_.size(), 1u);
    EXPECT_EQ(targets_[0].connectMode, 2);
    EXPECT_EQ(targets_[0].webAddress, one.reached) << one.url;
    // Afterwards the connection knows the address as the user does.
    EXPECT_EQ(GetConnection()->WebAddress(), one.url);
  }
}

TEST_F(AutoLoginTest, TheProxyIsCopiedOnlyWhenItIsEnabled) {
  const std::map<Setting, wxString> proxy = {{Setting::ProxyIP, "10.0.0.1"},
                                             {Setting::ProxyPort, "8080"},
                                             {Setting::ProxyUser, "prue"},
                                             {Setting::ProxyPassword, "secret"}};
  for (const char* enabled : {"0", "1", "True"}) {
    auto settings = WebWith(proxy);
    settings[Setting::ProxyEnabled] = enabled;
    ASSERT_TRUE(LogIn(settings));
    const bool on = *enabled != '0';
    const auto connection = GetConnection();
    EXPECT_EQ(connection->ProxyEnabled(), on);
    EXPECT_EQ(connection->ProxyIP(), on ? "10.0.0.1" : "");
    EXPECT_EQ(connection->ProxyPort(), on ? "8080" : "");
    EXPECT_EQ(connection->ProxyUser(), on ? "prue" : "");
    EXPECT_EQ(connection->ProxyPassword(), on ? "secret" : "");
  }
}

TEST_F(AutoLoginTest, ATimeOutBelowOneSecondBecomesThirty) {
  struct Case {
    const char* stored;
    int seconds;
  };
  for (const auto& one : {Case{"1", 1}, Case{"0", 30}, Case{"-5", 30}, Case{"3600", 3600}, Case{"", 30}}) {
    ASSERT_TRUE(LogIn(WebWith({{Setting::WebTimeout, one.stored}}))) << one.stored;
    EXPECT_EQ(GetConnection()->Timeout(), one.seconds) << one.stored;
  }
}

TEST_F(AutoLoginTest, WhereNoServerIsNamedNothingIsTried) {
  for (const char* blank : {"", " ", "   "}) {
    EXPECT_FALSE(LogIn({{Setting::ConfigurationServer, blank}}));
    EXPECT_FALSE(LogIn(WebWith({{Setting::WebServerURL, blank}})));
    EXPECT_TRUE(targets_.empty());
  }
}

TEST_F(AutoLoginTest, TheCallerGoesOnWhileTheDirectoryIsReached) {
  std::promise<void> goingOn;
  auto met = std::future_status::deferred;
  SetApplication(std::make_unique<Corvane::Application>([&](const Corvane::ConnectionTarget& target) {
    met = goingOn.get_future().wait_for(std::chrono::seconds(10));
    return TracingServices().directories(target);
  }));
  SetAutoLogin("1");
  EXPECT_TRUE(AutoLogin([&] { goingOn.set_value(); }));
  EXPECT_EQ(met, std::future_status::ready);
}

TEST_F(AutoLoginTest, AFailureIsSilentAndAnErrorIsReportedWithItsPlace) {
  EXPECT_FALSE(LogIn({{Setting::LoginPassword, "wrong password"}}));
  EXPECT_FALSE(LogIn({{Setting::LoginUserName, ""}}));
  EXPECT_EQ(LoggedText().find("AutoLogin"), std::string::npos);

  // No number, a number that is too large, a text longer than any setting.
  const std::map<Setting, wxString> damages[] = {{{Setting::ConnectMode, "local"}},
                                                 {{Setting::ConnectMode, "40000"}},
                                                 {{Setting::ConfigurationPort, "3000000000"}},
                                                 {{Setting::ConfigurationPort, wxString('9', 100000)}},
                                                 WebWith({{Setting::WebTimeout, "soon"}}),
                                                 WebWith({{Setting::ProxyEnabled, "perhaps"}})};
  std::size_t logged = LoggedText().size();
  for (const auto& damage : damages) {
    EXPECT_FALSE(LogIn(damage)) << &damage - damages;
    EXPECT_NE(LoggedText().find("modPublic", logged), std::string::npos) << &damage - damages;
    logged = LoggedText().size();
  }
  reachable_ = false;
  EXPECT_FALSE(LogIn({}));
  EXPECT_NE(LoggedText().find("AutoLogin", logged), std::string::npos);
  EXPECT_EQ(LoggedText().find("password"), std::string::npos);
}

}  // namespace
}  // namespace mindloft::test
