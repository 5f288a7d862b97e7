#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "backend/directory/sqlite/Database.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "mainwindow/DirectoryTree.h"
#include "mainwindow/SelectionReader.h"
#include "tests/mainwindow/MainWindowTest.h"
#include "tests/support/gui/ModalDriver.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {

/// Domains whose keys in their collection happen to be the keys of the tree's fixed nodes.
class NumberedDomainsTest : public MainWindowTest {
 protected:
  void SetUp() override {
    MainWindowTest::SetUp();
    const auto connection = GetConnection();
    ASSERT_TRUE(connection->Login("admin", kPassword));
    sqlite::Database(file_, SQLITE_OPEN_READWRITE)
        .Execute("UPDATE sqlite_sequence SET seq=59299 WHERE name='domain'");
    for (int key = 59300; key <= 59305; ++key) {
      const auto domain = Server().KDomains()->Add();
      domain->SetName("Number " + std::to_string(key));
      domain->Update();
      ASSERT_EQ(domain->Id(), std::to_string(key));
      const auto group = domain->DGroups()->Add();
      group->SetName("Group of " + std::to_string(key));
      group->Update();
    }
    connection->Logout();
  }
};

TEST_F(NumberedDomainsTest, AreDomainsAllTheSame) {
  Open();
  const auto text = [](int number) { return GetResource().GetString(number); };
  for (int number = 59300; number <= 59305; ++number) {
    const wxString key = std::to_string(number);
    SCOPED_TRACE(key.ToStdString());
    const std::vector<wxString> domain = {"59300", "59301", key};
    Select(domain);
    EXPECT_TRUE(form_->Tree().IsDomain(form_->GetTreeNodeIndex()));
    EXPECT_EQ(Rows(), (std::vector<wxString>{text(59304), text(59305)}));
    EXPECT_EQ(form_->Selection().Read().scope.domain->KDomain()->Id(), key.ToStdString());

    Select({"59300", "59301", key, "59304"});
    EXPECT_THAT(Rows(), testing::Contains("Group of " + key + "|"));
    Select({"59300", "59301", key, "59305"});
    EXPECT_THAT(Rows(), testing::IsEmpty());
    form_->RefreshAll();
    EXPECT_EQ(form_->GetTreeNodeIndex(), Node({"59300", "59301", key, "59305"}));

    // A row of the domains means the domain, not a fixed node.
    Select({"59300", "59301"});
    Explorer().SetFilter(key);
    ASSERT_EQ(Explorer().ListCount(), 1);
    Explorer().SelectListRow(0);
    ModalDriver modal;
    modal.ExpectForm("frmDomainInfo", [&](User& user) {
      EXPECT_EQ(user.Read("txtName"), ToWx(Server().KDomains()->Item(key.ToStdString())->KDomain()->Name()));
      user.Click("cmdCancel");
    });
    form_->OpenSelected();
  }
}

TEST_F(NumberedDomainsTest, LeaveTheFixedNodesWhatTheyAre) {
  Open();
  Select({"59300", "59303"});
  EXPECT_EQ(Explorer().ListCount(), 6);
  EXPECT_EQ(Explorer().Columns().size(), 4u);
  Select({"59300"});
  EXPECT_EQ(Explorer().ListCount(), 3);
  for (std::int64_t row = 0; row < 3; ++row) {
    Select({"59300"});
    const wxString key = Explorer().ListRow(row).key;
    Explorer().SelectListRow(row);
    form_->OpenSelected();
    EXPECT_EQ(form_->GetTreeNodeIndex(), Node({"59300", key}));
  }
}

}  // namespace mindloft::test
