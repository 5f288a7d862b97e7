#include <gmock/gmock.h>
#include <wx/listctrl.h>

#include "backend/corvane/IdList.h"
#include "backend/tessaline/Text.h"
#include "core/Refresh.h"
#include "editors/PendingChecks.h"
#include "editors/SessionLanguage.h"
#include "tests/editors/user/UserDetailFixture.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

TEST(PendingChecksTest, KeepsOnlyWhatDiffers) {
  PendingChecks checks;
  checks.SetSaved({1, 2, 3}, {10, 10, 20});
  checks.Toggle(1, 10);
  checks.Toggle(4, 10);
  checks.Toggle(3, 20);
  checks.Toggle(3, 20);
  EXPECT_THAT(checks.Additions(), ElementsAre(4));
  EXPECT_THAT(checks.Removals(), ElementsAre(1));
  EXPECT_THAT(checks.CheckedIn(10), UnorderedElementsAre(2, 4));
  EXPECT_EQ(Corvane::JoinIds({4, 12}), "4;12");
  // Somebody else has added 4 and removed 2: what was wanted of 4 is done, and 1 is still to go.
  checks.SetSaved({1, 3, 4}, {10, 20, 10});
  EXPECT_THAT(checks.Additions(), IsEmpty());
  EXPECT_THAT(checks.Removals(), ElementsAre(1));
  EXPECT_TRUE(checks.IsChecked(4));
  checks.Commit();
  EXPECT_FALSE(checks.HasChanges());
  EXPECT_FALSE(checks.IfIdExist(1));
}

class UserMembershipTest : public UserDetailFixture {};

TEST_F(UserMembershipTest, ListsAreInTheOrderOfTheLanguage) {
  const auto domain = Server().KDomains()->Add();
  domain->SetName("\u738b\u5e9c");
  domain->Update();
  Named("anna")->ChangeDomains(domain->Id(), "");
  Edit(Named("anna"), [&](User& user) {
    user.SelectPage("sstUser", 2);
    for (const int code : {2052, 1033}) {
      ASSERT_TRUE(GetResource().SwitchLanguage(code));
      SetSessionLanguage();
      GetRefresh()->NotifyLanguage();
      const bool first = code == 2052;
      EXPECT_EQ(Names(user, "ctDomain").front() == ToWx("\u738b\u5e9c"), first) << code;
      EXPECT_EQ(RowOf(user, "ctGroup", "Readers"), first ? 2 : 1)
          << code << ": behind the administrators of its own domain, and of the other";
    }
    user.Click("cmdCancel");
  });
}

TEST_F(UserMembershipTest, RolesAreToggledWithMouseAndSpace) {
  wxString role;
  Edit(Named("anna"), [&](User& user) {
    user.SelectPage("sstUser", 1);
    auto& list = user.Find<ctExplorer>("ctRole");
    role = Names(user, "ctRole").front();
    ClickCheck(user, "ctRole", role);
    EXPECT_TRUE(user.IsEnabled("cmdApply"));
    list.SelectListRow(0);
    list.FocusList();
    user.Press(WXK_SPACE, 0, "list");
    user.Click("cmdApply");
    EXPECT_EQ(Named("anna")->RoleIds(), "") << "back in its saved state";
    user.Press(WXK_SPACE, 0, "list");
    EXPECT_TRUE(user.IsEnabled("cmdApply"));
    user.Click("cmdOK");
  });
  const auto roles = Named("anna")->Roles().Page(0, 10);
  ASSERT_EQ(roles.size(), 1u);
  EXPECT_EQ(ToWx(roles.front().name), role);
}

TEST_F(UserMembershipTest, ADomainTakesItsGroupsWithIt) {
  Edit(Named("anna"), [this](User& user) {
    user.SelectPage("sstUser", 2);
    const auto alpha = Names(user, "ctGroup");
    EXPECT_GE(RowOf(user, "ctGroup", "Readers"), 0);
    EXPECT_LT(RowOf(user, "ctGroup", "Authors"), 0);
    ClickCheck(user, "ctDomain", "Beta");
    EXPECT_GE(RowOf(user, "ctGroup", "Authors"), 0);
    ClickCheck(user, "ctGroup", "Authors");
    ClickCheck(user, "ctGroup", "Writers");
    ClickCheck(user, "ctDomain", "Alpha");
    EXPECT_LT(RowOf(user, "ctGroup", "Readers"), 0);
    EXPECT_LT(RowOf(user, "ctGroup", "Writers"), 0);
    user.Click("cmdApply");
    EXPECT_THAT(DomainsOf("anna"), ElementsAre("Beta"));
    EXPECT_THAT(GroupsOf("anna"), ElementsAre("Authors"));
    // Checked again, the domain comes without its groups.
    ClickCheck(user, "ctDomain", "Alpha");
    EXPECT_GE(RowOf(user, "ctGroup", "Writers"), 0);
    user.Click("cmdOK");
  });
  EXPECT_THAT(DomainsOf("anna"), ElementsAre("Alpha", "Beta"));
  EXPECT_THAT(GroupsOf("anna"), ElementsAre("Authors"));
}

TEST_F(UserMembershipTest, WhoMayOnlyManageUsersChangesNoDomain) {
  for (const auto& role : Server().Roles()->View().Page(0, 10))
    if (role.name == "User managers") Named("bob")->ChangeRoles(Corvane::IdText(role.id), "");
  LogIn("bob");
  Edit(Named("anna"), [this](User& user) {
    user.SelectPage("sstUser", 2);
    modal_.ExpectMessage(60023, wxID_OK);
    ClickCheck(user, "ctDomain", "Alpha");
    modal_.ExpectMessage(60023, wxID_OK);
    ClickCheck(user, "ctGroup", "Readers");
    EXPECT_FALSE(user.IsEnabled("cmdApply"));
    user.Click("cmdOK");
  });
  EXPECT_THAT(GroupsOf("anna"), ElementsAre("Readers"));
}

TEST_F(UserMembershipTest, TheGroupsStandByDomainAndCanBeSearched) {
  for (int i = 0; i < 300; ++i) {
    const auto group = Domain("Beta")->DGroups()->Add();
    group->SetName("group " + std::to_string(1000 + i));
    group->Update();
  }
  Named("anna")->ChangeDomains(Domain("Beta")->Id(), "");
  Edit(Named("anna"), [](User& user) {
    user.SelectPage("sstUser", 2);
    auto& list = user.Find<ctExplorer>("ctGroup");
    const auto names = Names(user, "ctGroup");
    EXPECT_GE(names.size(), 303u);
    EXPECT_EQ(list.ListTotalCount(), static_cast<std::int64_t>(names.size()));
    const auto domainOf = [&](std::int64_t row) {
      return list.ListRow(row).fields.AfterFirst(1).BeforeFirst(1);
    };
    EXPECT_EQ(domainOf(0), "Alpha");
    EXPECT_EQ(domainOf(list.ListCount() - 1), "Beta");
    list.SortBy(1, true);
    EXPECT_EQ(domainOf(0), "Beta");
    list.SetFilter("group 1123");
    EXPECT_THAT(Names(user, "ctGroup"), ElementsAre("group 1123"));
    ClickCheck(user, "ctGroup", "group 1123");
    list.SetFilter("read");
    EXPECT_THAT(Names(user, "ctGroup"), ElementsAre("Readers"));
    user.Click("cmdOK");
  });
  EXPECT_THAT(GroupsOf("anna"), ElementsAre("Readers", "group 1123"));
}

TEST_F(UserMembershipTest, TheLastUserManagerKeepsHisRight) {
  const auto before = Named("admin")->RoleIds();
  Edit(Named("admin"), [this](User& user) {
    user.SelectPage("sstUser", 1);
    auto& list = user.Find<ctExplorer>("ctRole");
    const auto ids = ";" + Named("admin")->RoleIds() + ";";
    for (std::int64_t row = 0; row < list.ListCount(); ++row)
      if (ids.find(";" + ToUtf8(list.ListRow(row).key) + ";") != std::string::npos) list.ClickCheck(row);
    modal_.ExpectMessage(51103, wxID_OK);
    modal_.ExpectForm("frmErrorManager", [](User& error) {
      EXPECT_TRUE(error.Title().Contains("60046"));
      error.Click("cmdOK");
    });
    user.Click("cmdApply");
    EXPECT_TRUE(user.IsEnabled("cmdApply")) << "it can be put right and tried again";
    user.Click("cmdCancel");
  });
  EXPECT_EQ(Named("admin")->RoleIds(), before);
}

}  // namespace mindloft::test
