#include "app/modPublic.h"
#include "backend/directory/SqliteDirectory.h"
#include "tests/app/StartFixture.h"
#include "tests/support/gui/ModalDriver.h"

namespace mindloft::test {
namespace {

using Tessaline::Setting;
using SettingsAtLoginTest = StartFixture;

TEST_F(SettingsAtLoginTest, NobodyIsLockedOutByAWrongServerWithAutomaticLoginOn) {
  MakeDirectory();
  SetAutoLogin("1");
  GetResource().SetSetting(Setting::ConfigurationServer, "wrong-server");
  auto services = StartServices::Real(file_, [this] { return SqliteDirectory::Open(file_); });
  services.isShiftDown = [] { return false; };
  services.showMainWindow = [this] { trace_.push_back("window"); };
  ModalDriver modal;
  modal.ExpectForm("frmLogin", [&](User& user) {
    EXPECT_FALSE(wxWindow::FindWindowByName("frmSysAdmin")) << "prepared in vain";
    modal.ExpectForm("frmConfiguration", [](User& settings) {
      EXPECT_EQ(settings.Read("txtConfigurationServer"), "wrong-server");
      settings.Clear("txtConfigurationServer");
      settings.Type("txtConfigurationServer", "(local)");
      settings.Click("cmdOk");
    });
    user.Click("cmdSettings");
    EXPECT_EQ(user.Read("txtServer"), "(local)");
    user.Type("txtPassword", kPassword);
    user.Click("cmdOK");
  });
  Main({}, services);
  EXPECT_EQ(trace_.back(), "window");
  EXPECT_EQ(GetResource().GetSetting(Setting::ConfigurationServer), "(local)") << "also for the next start";
}

}  // namespace
}  // namespace mindloft::test
