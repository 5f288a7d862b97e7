#include <gmock/gmock.h>
#include <wx/combobox.h>

#include <map>
#include <sstream>

#include "backend/tessaline/Text.h"
#include "config/frmConfiguration.h"
#include "controls/texts/UseTextBox.h"
#include "tests/config/ConfigFixture.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

using ConfigurationTest = ConfigFixture;

constexpr const char* kProxyBoxes[] = {"TxtProxIP", "TxtProxPort", "txtFTPUserName", "txtFTPPassWord"};

TEST_F(ConfigurationTest, FirstStartWithoutAnySettings) {
  Configure([](User& user) {
    EXPECT_TRUE(user.IsChecked("OptLan"));
    EXPECT_TRUE(user.IsShown("picLan"));
    EXPECT_TRUE(user.IsEnabled("picLan"));
    EXPECT_FALSE(user.IsShown("picWeb"));
    EXPECT_FALSE(user.Find("picWeb").IsThisEnabled());
    EXPECT_EQ(user.Read("txtConfigurationServer"), "");
    EXPECT_EQ(user.Read("txtPort"), "10000");
    EXPECT_EQ(user.Read("cboLanguage"), "English");
    EXPECT_FALSE(user.IsEnabled("cmdApply"));

    const wxSize size = user.Form().GetSize();
    user.Click("OptWeb");
    EXPECT_EQ(user.Form().GetSize(), size) << "the form keeps its size";
    EXPECT_FALSE(user.IsShown("picLan"));
    EXPECT_TRUE(user.IsShown("picWeb"));
    EXPECT_TRUE(user.IsEnabled("cmdApply"));
    EXPECT_EQ(user.Read("txtFTPServerName"), "120");
    EXPECT_EQ(user.Read("cmbAddress"), "");
    EXPECT_FALSE(user.IsChecked("chkSecurityMode"));
    EXPECT_FALSE(user.IsChecked("ChkProx"));
    for (const bool enabled : {false, true, false}) {
      user.Check("ChkProx", enabled);
      for (const char* box : kProxyBoxes) {
        EXPECT_EQ(user.IsEnabled(box), enabled) << box;
        EXPECT_EQ(user.Find<UseTextBox>(box).BackColor().Value(), enabled ? 0xFFFFFFu : 0x8000000Fu) << box;
      }
    }
    user.Click("cmdCancel");
  });
  EXPECT_EQ(AllSettings(), "CurrentLanguage=1033\n") << "only the language follows its configuration";
  EXPECT_THAT(Urls(), IsEmpty());
}

TEST_F(ConfigurationTest, ShowsWhatIsStoredAndOkStoresItAgain) {
  const std::map<int, wxString> stored = {{0, "2"},    {7, "http://Web/"}, {8, "1"},        {9, "10.0.0.1"},
                                          {10, "80a"}, {11, "peer"},       {12, "se cret"}, {13, "45"},
                                          {23, "1"},   {24, "host"},       {25, ""}};
  for (const auto& [index, text] : stored) Set(index, text);
  Configure([](User& user) {
    EXPECT_TRUE(user.IsChecked("OptWeb"));
    EXPECT_EQ(user.Read("cmbAddress"), "http://Web/");
    EXPECT_TRUE(user.IsChecked("ChkProx"));
    EXPECT_EQ(user.Read("TxtProxIP"), "10.0.0.1");
    EXPECT_EQ(user.Read("TxtProxPort"), "80a");
    EXPECT_EQ(user.Read("txtFTPUserName"), "peer");
    EXPECT_EQ(user.Read("txtFTPPassWord"), "se cret");
    EXPECT_EQ(user.Read("txtFTPServerName"), "45");
    EXPECT_TRUE(user.IsChecked("chkSecurityMode"));
    EXPECT_EQ(user.Read("txtPort"), "10000");
    EXPECT_TRUE(user.IsShown("lblClearText")) << "the user is told how the password is kept";
    user.Click("cmdOk");
  });
  for (const auto& [index, text] : stored) EXPECT_EQ(Setting(index), text) << index;
  EXPECT_THAT(Urls(), ElementsAre("http://Web/"));
}

TEST_F(ConfigurationTest, SavingInOneModeLeavesTheOthersValuesByteForByte) {
  const std::vector<std::string> lan = {"ConfigurationServer", "ConfigurationPort"};
  const std::vector<std::string> web = {"WebServerURL", "ProxyEnabled",  "ProxyIP",    "ProxyPort",
                                        "ProxyUser",    "ProxyPassword", "WebTimeout", "SecureChannel"};
  const auto spoil = [this](const std::vector<std::string>& names) {
    std::uint32_t number = 7;
    for (const auto& name : names) SetRaw(name, number++);
    SetRaw(names[0], std::string(" \tkept as it is \u202e\U0001F600 "));
    SetRaw(names[1], platform::OtherRegistryType());
    std::string kept;
    for (const auto& name : names) {
      kept += name == names[0]   ? name + "= \tkept as it is \u202e\U0001F600 \n"
              : name == names[1] ? name + " of another type\n"
                                 : name + ":" + std::to_string(7 + (&name - names.data())) + "\n";
    }
    return kept;
  };
  const auto kept = [this](const std::string& lines) {
    std::string all = AllSettings();
    std::string found;
    std::istringstream wanted(lines);
    for (std::string line; std::getline(wanted, line);) {
      if (all.find(line + "\n") != std::string::npos) found += line + "\n";
    }
    return found;
  };

  const std::string webBefore = spoil(web);
  Configure([](User& user) {
    user.Type("txtConfigurationServer", "there");
    user.Click("cmdOk");
  });
  EXPECT_EQ(kept(webBefore), webBefore);
  EXPECT_EQ(Setting(0), "1");
  EXPECT_EQ(Setting(24), "there");
  EXPECT_EQ(Setting(25), "10000");

  const std::string lanBefore = spoil(lan);
  Configure([](User& user) {
    user.Click("OptWeb");
    user.Clear("cmbAddress");
    user.Clear("txtFTPServerName");
    user.Click("cmdOk");
  });
  EXPECT_EQ(kept(lanBefore), lanBefore);
  EXPECT_EQ(Setting(0), "2");
  EXPECT_EQ(Setting(13), "") << "an empty number is stored as it stands";
  EXPECT_EQ(Setting(8), "0");
  EXPECT_EQ(Urls().size(), 1u) << "the URL of the first saving; a blank one is never written";
}

TEST_F(ConfigurationTest, EveryEditAllowsApplyAndApplyKeepsTheFormOpen) {
  Set(0, "2");
  Set(8, "1");
  AddUrl("A", "http://known/");
  Configure([](User& user) {
    const auto edited = [&](const char* what, const std::function<void()>& edit) {
      EXPECT_FALSE(user.IsEnabled("cmdApply")) << "before " << what;
      edit();
      EXPECT_TRUE(user.IsEnabled("cmdApply")) << what;
      user.Click("cmdApply");
      WaitFor([&] { return user.Find("cmdOk").HasFocus(); }, "the focus on OK");
    };
    for (const char* box :
         {"txtFTPServerName", "TxtProxIP", "TxtProxPort", "txtFTPUserName", "txtFTPPassWord", "cmbAddress"}) {
      edited(box, [&] { user.Type(box, "1"); });
    }
    edited("a listed URL", [&] { user.Choose("cmbAddress", "http://known/"); });
    edited("chkSecurityMode", [&] { user.Check("chkSecurityMode"); });
    edited("the current language", [&] { user.Choose("cboLanguage", "English"); });
    edited("ChkProx", [&] { user.Check("ChkProx", false); });
    edited("OptLan", [&] { user.Click("OptLan"); });
    for (const char* box : {"txtPort", "txtConfigurationServer"}) edited(box, [&] { user.Type(box, "1"); });
    user.Type("txtConfigurationServer", " not taken");
    user.Press(WXK_ESCAPE);
  });
  EXPECT_EQ(Setting(24), "1");
  EXPECT_EQ(Setting(0), "1");
}

TEST_F(ConfigurationTest, FullWidthCharactersBecomeNarrowWhereAddressesAreTyped) {
  Set(8, "1");
  Configure([](User& user) {
    user.Type("txtConfigurationServer", ToWx("ｈｏｓｔ．１"));
    EXPECT_EQ(user.Read("txtConfigurationServer"), "host.1");
    user.Click("OptWeb");
    for (const char* box : {"TxtProxIP", "TxtProxPort"}) {
      user.Type(box, ToWx("１０．ａ"));
      EXPECT_EQ(user.Read(box), "10.a") << box;
    }
    user.Type("txtFTPUserName", ToWx("Ａ"));
    EXPECT_EQ(user.Read("txtFTPUserName"), ToWx("Ａ")) << "a name is nobody's to change";
    user.Press(WXK_ESCAPE);
  });
}

TEST_F(ConfigurationTest, ANewUrlIsRememberedTrimmedOnceForEachSpelling) {
  Set(0, "2");
  AddUrl("A", "http://one/");
  AddUrl("B", " http://blanks/ ");
  for (const char* typed : {"  http://one/ ", "HTTP://one/", "http://blanks/", "HTTP://one/", "   "}) {
    Configure([typed](User& user) {
      user.Clear("cmbAddress");
      user.Type("cmbAddress", typed);
      user.Click("cmdOk");
    });
    EXPECT_EQ(Setting(7), typed);
  }
  EXPECT_THAT(Urls(), ElementsAre("http://one/", " http://blanks/ ", "HTTP://one/", "http://blanks/"));
  for (const auto& [name, value] : registry_->Values(platform::RegistryRoot::CurrentUser, kUrlKey)) {
    if (name.size() == 1) continue;
    EXPECT_EQ(name.size(), 32u);
    EXPECT_EQ(name.find_first_not_of("0123456789ABCDEF"), std::string::npos) << name;
  }
}

TEST_F(ConfigurationTest, DamagedSettingsAndHostileUrlsLeaveTheFormUsable) {
  const std::string longUrl = "http://" + std::string(10'000, 'x') + "/";
  const std::string hostile = "\"'\\\x01\n\t\u202eevil\U0001F468\u200d\U0001F469";
  Set(0, "2");
  Set(7, ToWx(longUrl));
  for (const char* setting : {"ProxyEnabled", "SecureChannel", "WebTimeout"})
    SetRaw(setting, std::string("no number"));
  SetRaw("CurrentLanguage", platform::OtherRegistryType());
  AddUrl("hostile", hostile);
  AddUrl("long", longUrl);
  registry_->Set(platform::RegistryRoot::CurrentUser, kUrlKey, "number", std::uint32_t{5});
  for (int i = 0; i < 3000; ++i) AddUrl("u" + std::to_string(i), "http://host" + std::to_string(i) + "/");
  Configure([&](User& user) {
    EXPECT_EQ(user.Read("cmbAddress"), ToWx(longUrl));
    EXPECT_EQ(user.Find<wxComboBox>("cmbAddress").GetCount(), 3002u);
    EXPECT_EQ(user.Find<wxComboBox>("cmbAddress").GetString(0), ToWx(hostile));
    EXPECT_LT(user.Form().GetSize().x, 1200);
    user.Click("cmdOk");
  });
  EXPECT_EQ(Setting(7), ToWx(longUrl)) << "nothing is cut off";
  EXPECT_EQ(Urls().size(), 3002u);
  EXPECT_THAT(LoggedText(), HasSubstr("frmConfiguration"));
}

TEST_F(ConfigurationTest, AFailureToWriteIsShownAndTheFormStays) {
  class ReadOnly : public platform::RegistryStore {
   public:
    std::optional<platform::RegistryValue> Get(platform::RegistryRoot, const std::string&,
                                               const std::string& name) const override {
      return name == "CurrentLanguage" ? std::optional<platform::RegistryValue>("1033") : std::nullopt;
    }
    void Set(platform::RegistryRoot, const std::string&, const std::string& name,
             const platform::RegistryValue&) override {
      if (name != "CurrentLanguage") throw Error(ErrorNumber::Registry, "read only");
    }
    void Delete(platform::RegistryRoot, const std::string&, const std::string&) override {}
    std::vector<std::pair<std::string, platform::RegistryValue>> Values(platform::RegistryRoot,
                                                                        const std::string&) const override {
      return {};
    }
    void DeleteKey(platform::RegistryRoot, const std::string&) override {}
  };
  registry_ = std::make_shared<ReadOnly>();
  RestartServices();
  ModalDriver modal;
  modal.ExpectForm("frmConfiguration", [&](User& user) {
    user.Type("txtConfigurationServer", "typed");
    modal.ExpectForm("frmErrorManager", [](User& error) { error.Click("cmdOK"); });
    user.Click("cmdOk");
    EXPECT_TRUE(user.IsShown("cmdOk"));
    EXPECT_EQ(user.Read("txtConfigurationServer"), "typed");
    EXPECT_TRUE(user.IsEnabled("cmdApply"));
    user.Press(WXK_ESCAPE);
  });
  frmConfiguration(nullptr).ShowModal();
}

}  // namespace
}  // namespace mindloft::test
