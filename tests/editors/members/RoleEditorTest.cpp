#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <wx/listctrl.h>

#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "controls/texts/UseMultiLineTextBox.h"
#include "controls/texts/UseTextBox.h"
#include "editors/members/frmRoleProperty.h"
#include "tests/editors/members/MembersFixture.h"
#include "tests/mainwindow/OtherConsole.h"

namespace mindloft::test {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

class RoleEditorTest : public MembersFixture {
 protected:
  static constexpr const char* kRole = "Administrators";

  bool Edit(ModalDriver& modal, ModalDriver::Script script) {
    modal.ExpectForm("frmRoleProperty", std::move(script));
    frmRoleProperty sheet(nullptr);
    sheet.OpenWindow(Role(kRole));
    return sheet.HasSaved();
  }
  std::vector<std::string> Members() { return Names(Role(kRole)->Members()); }
};

TEST_F(RoleEditorTest, ShowsTheRoleAndChangesNothing) {
  const auto before = Changes();
  for (const char* login : {"admin", "plain"}) {
    LogIn(login);
    ModalDriver modal;
    EXPECT_FALSE(Edit(modal, [&](User& user) {
      EXPECT_EQ(user.Title(), wxString("Properties: ") + kRole);
      EXPECT_EQ(user.Read("txtName"), kRole);
      EXPECT_EQ(ToUtf8(user.Read("txtPrivilege")), Role(kRole)->PrivilegeText());
      EXPECT_TRUE(user.Find<UseTextBox>("txtName").Locked());
      EXPECT_TRUE(user.Find<UseMultiLineTextBox>("txtPrivilege").Locked());
      user.SelectPage("sstRole", 1);
      EXPECT_EQ(Explorer(user).Columns().at(0).caption, GetResource().GetString(59306));
      EXPECT_EQ(user.IsEnabled("cmdAdd"), login == std::string("admin"));
      EXPECT_EQ(user.IsEnabled("cmdRemove"), login == std::string("admin"));
      EXPECT_FALSE(user.IsEnabled("cmdApply"));
      EXPECT_TRUE(user.Find<UseMultiLineTextBox>("txtPrivilege").Locked());
      user.Click("cmdOK");
    }));
  }
  LogIn("admin");
  EXPECT_EQ(Changes(), before);
}

TEST_F(RoleEditorTest, OKStoresWhatIsPending) {
  ModalDriver modal;
  EXPECT_TRUE(Edit(modal, [&](User& user) {
    user.SelectPage("sstRole", 1);
    modal.ExpectForm("frmListUser", [](User& picker) {
      EXPECT_THAT(Listed(picker), Not(Contains("admin")));
      Select(picker, {"anna", "plain"});
      picker.Click("cmdOK");
    });
    user.Click("cmdAdd");
    EXPECT_TRUE(user.IsEnabled("cmdApply"));
    user.Click("cmdApply");
    EXPECT_FALSE(user.IsEnabled("cmdApply"));
    Select(user, {"plain"});
    user.Click("cmdRemove");
    user.Click("cmdOK");
  }));
  EXPECT_THAT(Members(), Contains("anna"));
  EXPECT_THAT(Members(), Not(Contains("plain")));
}

TEST_F(RoleEditorTest, TheLastWhoManagesUsersStays) {
  ModalDriver modal;
  EXPECT_FALSE(Edit(modal, [&](User& user) {
    user.SelectPage("sstRole", 1);
    Select(user, {"admin"});
    user.Click("cmdRemove");
    modal.ExpectForm("frmErrorManager", [](User& error) {
      EXPECT_THAT(ToUtf8(error.Read("lblHeadline")), HasSubstr("last one who may manage users"));
      error.Click("cmdOK");
    });
    user.Click("cmdApply");
    EXPECT_TRUE(user.IsEnabled("cmdApply"));
    EXPECT_THAT(Listed(user), Not(Contains("admin")));
    user.Click("cmdCancel");
  }));
  EXPECT_THAT(Members(), ElementsAre("admin"));
}

TEST_F(RoleEditorTest, MembersOfAnotherConsoleStay) {
  OtherConsole other(file_, "admin", kPassword);
  ModalDriver modal;
  EXPECT_TRUE(Edit(modal, [&](User& user) {
    user.SelectPage("sstRole", 1);
    modal.ExpectForm("frmListUser", [](User& picker) {
      Select(picker, {"anna"});
      picker.Click("cmdOK");
    });
    user.Click("cmdAdd");
    other.Server()->Roles()->Item(Role(kRole)->Id())->ChangeMembers(ToUtf8(IdOf("plain")), "");
    user.Click("cmdOK");
  }));
  EXPECT_THAT(Members(), Contains("anna"));
  EXPECT_THAT(Members(), Contains("plain"));
}

}  // namespace mindloft::test
