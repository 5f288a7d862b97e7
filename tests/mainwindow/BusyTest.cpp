#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "backend/errors/Error.h"
#include "mainwindow/ObjectKindRegistry.h"
#include "tests/mainwindow/MainWindowTest.h"
#include "tests/support/gui/ModalDriver.h"

namespace mindloft::test {

/// While the window rebuilds its tree or its list, selections mean nothing; afterwards they do, however the
/// rebuilding ended.
class BusyTest : public MainWindowTest {
 protected:
  const std::vector<wxString> users_ = {"59300", "59303"}, roles_ = {"59300", "59302"};
  using RowSource = decltype(DirectoryKind::rows);

  /// Lets `before` run whenever the users are about to be listed.
  void BeforeUsers(std::function<void()> before) {
    auto* kind = form_->Kinds().Find("59303");
    kind->rows = [before = std::move(before), rows = kind->rows](const KindScope& scope) {
      before();
      return rows(scope);
    };
  }
  std::size_t UserColumns() { return form_->Kinds().Find("59303")->columns.size() + 1; }
  std::size_t RoleColumns() { return form_->Kinds().Find("59302")->columns.size() + 1; }
};

TEST_F(BusyTest, ASelectionWhileAListIsMadeDoesNothing) {
  Open();
  int listed = 0;
  BeforeUsers([&] {
    if (++listed == 1) Explorer().SelectTreeNode(Node(roles_));
  });
  Select(users_);
  EXPECT_EQ(form_->GetTreeNodeIndex(), Node(roles_));
  EXPECT_EQ(Explorer().Columns().size(), UserColumns()) << "the list of the node selected first";
  EXPECT_EQ(Explorer().ListCount(), 6);
  Select(users_);
  EXPECT_EQ(listed, 2);
  Select(roles_);
  EXPECT_EQ(Explorer().Columns().size(), RoleColumns()) << "no longer busy";
}

TEST_F(BusyTest, TheSelectionOfARebuiltTreeDoesNotFillTheListAgain) {
  Open();
  int listed = 0;
  BeforeUsers([&] { ++listed; });
  Select(users_);
  Explorer().SetFilter("plain");
  User(*form_).Command("mnuViewRefresh");
  EXPECT_EQ(listed, 1);
  EXPECT_EQ(Explorer().Filter(), "plain");
  EXPECT_EQ(form_->GetTreeNodeIndex(), Node(users_));
}

TEST_F(BusyTest, AFailureGivesTheWindowBack) {
  Open();
  ModalDriver modal;
  const auto expectError = [&] {
    modal.ExpectForm("frmErrorManager", [](User& user) { user.Click("cmdOK"); });
  };
  bool fails = true;
  BeforeUsers([&] {
    if (fails) throw Error(ErrorNumber::DirectoryBusy);
  });
  expectError();
  Select(users_);
  modal.Verify();
  EXPECT_EQ(Explorer().ListCount(), 0);
  Select(roles_);
  EXPECT_EQ(Explorer().Columns().size(), RoleColumns());
  EXPECT_GT(Explorer().ListCount(), 0);
  fails = false;
  Select(users_);
  EXPECT_EQ(Explorer().ListCount(), 6);

  // The domains of a login that has ended cannot be read.
  GetConnection()->Logout();
  expectError();
  User(*form_).Command("mnuViewRefresh");
  modal.Verify();
  ASSERT_TRUE(GetConnection()->Login("admin", kPassword));
  Select(roles_);
  EXPECT_EQ(Explorer().Columns().size(), RoleColumns());
}

}  // namespace mindloft::test
