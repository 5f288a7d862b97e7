#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <wx/menu.h>
#include <wx/toolbar.h>

#include "backend/tessaline/GroupedNumber.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "core/Refresh.h"
#include "mainwindow/CommandSet.h"
#include "mainwindow/DirectoryTree.h"
#include "mainwindow/FirstImages.h"
#include "mainwindow/LanguageMenu.h"
#include "mainwindow/ObjectKindRegistry.h"
#include "tests/mainwindow/MainWindowTest.h"
#include "tests/support/gui/ModalDriver.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {

class CommandsTest : public MainWindowTest {
 protected:
  /// Gives every kind editors that only count their calls.
  void RegisterEditors() {
    for (const auto& kind : form_->Kinds().All()) {
      auto* editable = form_->Kinds().Find(kind.key);
      for (auto* command : {&editable->create, &editable->remove, &editable->edit})
        if (!command->name.empty())
          command->action = [this](const KindScope&, const std::vector<wxString>& keys) {
            called_.push_back(keys);
          };
    }
    form_->UpdateCommands();
  }
  std::vector<std::vector<wxString>> called_;
};

TEST_F(CommandsTest, CommandsOfTheWindowNeedNoPrivilege) {
  Open("plain");
  Select({"59300", "59303"});
  Explorer().SelectListRow(0);
  Settle();
  for (const char* name :
       {"mnuFileExit", "mnuFilePrintSetup", "mnuEditSelectAll", "mnuEditFind", "mnuViewRefresh"})
    EXPECT_TRUE(IsEnabled(name)) << name;
}

TEST_F(CommandsTest, PrivilegesAndSelectionDecide) {
  struct Case {
    const char* user;
    bool mayManage;
  };
  for (const auto& [user, mayManage] : {Case{"admin", true}, Case{"plain", false}}) {
    Open(user);
    RegisterEditors();
    Select({"59300", "59303"});
    EXPECT_EQ(IsEnabled("mnuFileNew"), mayManage) << user;
    EXPECT_FALSE(IsEnabled("mnuFileDelete"));
    EXPECT_FALSE(IsEnabled("mnuGroupaddNew"));
    Explorer().SelectListRow(1);
    Settle();
    EXPECT_EQ(IsEnabled("mnuFileDelete"), mayManage) << user;
    EXPECT_TRUE(IsEnabled("mnuFileProperties"));
    Explorer().SelectAllListRows();
    Settle();
    EXPECT_FALSE(IsEnabled("mnuFileProperties"));

    Select({"59300", "59302"});
    EXPECT_FALSE(IsEnabled("mnuFileNew"));

    Select({"59300", "59301", DomainKey("Alpha"), "59304"});
    EXPECT_EQ(IsEnabled("mnuGroupaddNew"), mayManage) << user;
    Select({"59300", "59301", DomainKey("Alpha")});
    EXPECT_EQ(IsEnabled("mnuFileDelete"), mayManage) << user;
    called_.clear();
    form_->OpenSelected();
    EXPECT_THAT(called_, testing::ElementsAre(std::vector<wxString>{DomainKey("Alpha")}));
    ASSERT_TRUE(CloseWindow());
  }
}

TEST_F(CommandsTest, PrintSetupAsksForThePage) {
  Open();
  ModalDriver modal;
  modal.ExpectForm("frmPageSetup", [](User& user) { user.Click("CmdCancel"); });
  User(*form_).Command("mnuFilePrintSetup");
  modal.Verify();
}

TEST_F(CommandsTest, EveryDrawingOfTheFirstPictureExists) {
  for (const auto& [name, size] : FirstImages()) EXPECT_TRUE(LoadImage(name, size).IsOk()) << name;
}

TEST_F(CommandsTest, LanguageSwitchReachesTheOpenWindow) {
  Open();
  Select({"59300", "59303"});
  for (const int code : {2052, 1025, 1033}) {
    LanguageMenu::Switch(code);
    Settle();
    const auto text = [](int number) { return GetResource().GetString(number); };
    ASSERT_EQ(GetResource().CurrentLanguage(), code);
    EXPECT_EQ(form_->GetLayoutDirection() == wxLayout_RightToLeft, code == 1025);
    EXPECT_EQ(Explorer().GetLayoutDirection() == wxLayout_RightToLeft, code == 1025);
    EXPECT_EQ(form_->GetTitle(), GetResource().Language().Title("frmSysAdmin").value());
    EXPECT_EQ(Explorer().TreeNodeText(0), text(59300));
    EXPECT_EQ(Explorer().TreeNodeKey(form_->GetTreeNodeIndex()), "59303");
    EXPECT_EQ(Explorer().Columns().at(0).caption, text(59306));
    EXPECT_EQ(Explorer().ListCount(), 6);
    EXPECT_EQ(Status(0), text(59662) + " admin");
    for (const auto& command : form_->Commands().All()) {
      EXPECT_FALSE(CommandSet::Caption(command.name).StartsWith("#")) << command.name;
      const int id = CommandSet::Id(command.name);
      if (form_->GetMenuBar()->FindItem(id)) {
        EXPECT_EQ(MenuText(command.name), wxMenuItem::GetLabelText(CommandSet::Caption(command.name)));
      }
      if (form_->GetToolBar()->FindById(id)) {
        EXPECT_EQ(form_->GetToolBar()->GetToolShortHelp(id), CommandSet::Tip(command.name));
      }
    }
  }
}

TEST_F(CommandsTest, NotificationsRefreshOnlyWhatShowsTheObject) {
  Open();
  Select({"59300", "59301"});
  const auto refresh = GetRefresh();
  const auto domains = Server().KDomains();
  const auto domain = domains->Add();
  domain->SetName("Gamma");
  domain->Update();
  const auto context = domains->Item(domain->Id());
  const int nodes = Explorer().TreeNodeCount();

  for (const auto& [kind, action] : std::vector<std::pair<int, int>>{{0, 1}, {5, 1}, {99, 2}, {1, 0}, {1, 4}})
    refresh->Notify(kind, action, context);
  refresh->Notify(1, 1, std::string("no domain"));
  EXPECT_EQ(Explorer().TreeNodeCount(), nodes);
  EXPECT_EQ(Explorer().ListCount(), 2);

  refresh->Notify(ObjectKind::Domain, ObjectAction::Created, context);
  const int node = Node({"59300", "59301", ToWx(domain->Id())});
  ASSERT_GE(node, 0);
  EXPECT_EQ(Explorer().ListCount(), 3);

  domain->SetName("Delta");
  domain->Update();
  refresh->Notify(ObjectKind::Domain, ObjectAction::Changed, context);
  EXPECT_EQ(Explorer().TreeNodeText(node), "Delta");

  Explorer().SelectTreeNode(Node({"59300", "59301", ToWx(domain->Id()), "59305"}));
  domains->Delete({domain->Stored().id, domain->Stored().version});
  refresh->Notify(ObjectKind::Domain, ObjectAction::Deleted, context);
  EXPECT_EQ(Explorer().TreeNodeCount(), nodes);
  EXPECT_EQ(Explorer().TreeNodeKey(form_->GetTreeNodeIndex()), "59301");
  EXPECT_EQ(Explorer().ListCount(), 2);

  Select({"59300", "59303"});
  const auto user = Server().Users()->Add();
  user->SetName("newcomer");
  user->Update();
  refresh->Notify(ObjectKind::UserGroup, ObjectAction::Created, user);
  EXPECT_EQ(Explorer().ListCount(), 6);
  refresh->Notify(ObjectKind::User, ObjectAction::Created, user);
  EXPECT_EQ(Explorer().ListCount(), 7);
}

TEST_F(CommandsTest, PositionAndBorderAreRemembered) {
  Open();
  form_->SetSize(80, 60, 700, 500);
  Settle();
  const auto size = form_->GetSize();
  Explorer().SetSashPosition(240);
  ASSERT_TRUE(CloseWindow());
  EXPECT_FALSE(GetConnection()->IsLoggedIn());
  Open();
  EXPECT_EQ(form_->GetSize(), size);
  EXPECT_EQ(Explorer().SashPosition(), 240);
}

TEST_F(CommandsTest, AFormThatRefusesKeepsTheWindowAndTheLogin) {
  Open();
  auto* other = new wxFrame(nullptr, wxID_ANY, "other");
  other->Bind(wxEVT_CLOSE_WINDOW, [](wxCloseEvent& event) { event.Veto(); });
  EXPECT_FALSE(form_->Close());
  EXPECT_TRUE(GetConnection()->IsLoggedIn());
  EXPECT_EQ(GetRegistry().GetNumber(platform::RegistryRoot::CurrentUser,
                                    "software\\Ordwell\\Mindloft\\Resource\\FormPos\\frmSysAdmin", "State"),
            -1);
  other->Destroy();
  Settle();
}

TEST_F(CommandsTest, NumbersAreGrouped) {
  EXPECT_EQ(GroupedNumber(0), "0");
  EXPECT_EQ(GroupedNumber(999), "999");
  EXPECT_EQ(GroupedNumber(1000), "1,000");
  EXPECT_EQ(GroupedNumber(1000000), "1,000,000");
}

}  // namespace mindloft::test
