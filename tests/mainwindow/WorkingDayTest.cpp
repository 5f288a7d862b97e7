#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "mainwindow/CommandSet.h"
#include "tests/mainwindow/MainWindowTest.h"
#include "tests/support/gui/ModalDriver.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {

class WorkingDayTest : public MainWindowTest {
 protected:
  static void SelectNamed(ctExplorer& list, const wxString& name) {
    for (std::int64_t row = 0; row < list.ListCount(); ++row)
      if (list.ListRow(row).fields.BeforeFirst(wxUniChar(1)) == name) {
        list.SelectListRow(row);
        Settle();
        return;
      }
    FAIL() << "no row " << name.utf8_string();
  }
  void Run(const char* name) {
    const auto* command = form_->Commands().Find(name);
    ASSERT_TRUE(command && CommandSet::Enabled(*command, form_->Selection().Read())) << name;
    form_->Commands().Run(*command, form_->Selection().Read());
    Settle();
  }
};

TEST_F(WorkingDayTest, FromANewDomainAndUserToTheirEnd) {
  Open();
  ModalDriver modal;
  modal.ExpectForm("frmDomainInfo", [](User& user) {
    user.Type("txtName", "Physics");
    user.Click("cmdOK");
  });
  Run("mnuDomainaddNew");
  modal.ExpectForm("frmUserDetail", [](User& user) {
    user.Type("txtName", "curie");
    user.Type("txtFName", "Marie Curie");
    user.Type("txtPwd", kPassword);
    user.Type("txtCfmPwd", kPassword);
    user.Click("cmdOK");
  });
  Run("mnuUseraddNew");

  const auto physics = DomainKey("Physics");
  Select({"59300", "59301", physics, "59305"});
  modal.ExpectForm("frmDUserAdd", [](User& user) {
    SelectNamed(user.Find<ctExplorer>("ctUser"), "curie");
    user.Click("cmdOK");
  });
  Run("mnuDUseraddNew");
  EXPECT_THAT(Rows(), testing::ElementsAre("curie|Marie Curie|"));
  SelectNamed(Explorer(), "curie");
  modal.ExpectForm("frmDUserProperty", [](User& user) {
    user.Find<ctExplorer>("ctGroup").ClickCheck(0);
    user.Click("cmdOK");
  });
  Run("mnuFileProperties");

  // She may manage her domain now, and nothing else.
  ASSERT_TRUE(CloseWindow());
  Open("curie");
  Select({"59300", "59301", physics, "59304"});
  EXPECT_TRUE(IsEnabled("mnuGroupaddNew"));
  modal.ExpectForm("frmDGroupProperty", [](User& user) {
    user.Type("txtName", "Radiologists");
    user.Click("cmdOK");
  });
  Run("mnuGroupaddNew");
  EXPECT_EQ(Explorer().ListCount(), 2);
  Select({"59300", "59301", DomainKey("Alpha"), "59304"});
  for (const char* name : {"mnuGroupaddNew", "mnuUseraddNew", "mnuDomainaddNew"})
    EXPECT_FALSE(IsEnabled(name)) << name;
  ASSERT_TRUE(CloseWindow());

  Open();
  Select({"59300", "59301", physics});
  modal.ExpectMessage(59311, wxID_YES);
  Run("mnuFileDelete");
  EXPECT_TRUE(DomainKey("Physics").empty());
  Select({"59300", "59303"});
  SelectNamed(Explorer(), "curie");
  modal.ExpectMessage(59359, wxID_YES);
  Run("mnuFileDelete");
  EXPECT_EQ(Explorer().ListCount(), 6);
  ASSERT_TRUE(CloseWindow());
  EXPECT_FALSE(GetConnection()->Login("curie", kPassword));
}

}  // namespace mindloft::test
