#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "core/Refresh.h"
#include "mainwindow/DirectoryTree.h"
#include "mainwindow/LanguageMenu.h"
#include "mainwindow/MainStatusBar.h"
#include "mainwindow/MainToolBar.h"
#include "tests/mainwindow/MainWindowTest.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {

using testing::ElementsAre;

/// Order and place of what the window shows, and what is remembered of it.
class ArrangementTest : public MainWindowTest {
 protected:
  std::vector<wxString> Names() {
    std::vector<wxString> names;
    for (const auto& row : Rows()) names.push_back(row.BeforeFirst('|'));
    return names;
  }
  std::vector<wxString> TreeDomains() {
    std::vector<wxString> names;
    const int folder = Node({"59300", "59301"});
    for (int index = 0; index < Explorer().TreeNodeCount(); ++index)
      if (Explorer().TreeNodeParent(index) == folder) names.push_back(Explorer().TreeNodeText(index));
    return names;
  }
};

TEST_F(ArrangementTest, EveryHeadingSorts) {
  const auto gamma = [this] {
    const auto domain = Server().KDomains()->Add();
    domain->SetName("Gamma");
    domain->SetDescription("a");
    domain->Update();
  };
  Open();
  gamma();
  Select({"59300", "59301"});
  EXPECT_THAT(Names(), ElementsAre("Alpha", "Beta", "Gamma"));
  Explorer().SortBy(1, false);
  EXPECT_THAT(Names(), ElementsAre("Gamma", "Alpha", "Beta"));
  Explorer().SortBy(2, false);
  EXPECT_THAT(Names(), ElementsAre("Alpha", "Gamma", "Beta"));
  Explorer().SortBy(2, true);
  EXPECT_THAT(Names(), ElementsAre("Beta", "Gamma", "Alpha"));

  Select({"59300", "59302"});
  Explorer().SortBy(1, false);
  auto roles = Names();
  Explorer().SortBy(1, true);
  std::reverse(roles.begin(), roles.end());
  EXPECT_EQ(Names(), roles);

  // The folders come in the tree's order until the heading is clicked.
  Select({"59300"});
  const auto folders = Names();
  EXPECT_EQ(Explorer().SortColumn(), -1);
  auto sorted = folders;
  std::sort(sorted.begin(), sorted.end());
  Explorer().SortBy(0, false);
  EXPECT_EQ(Names(), sorted);
  Explorer().SortBy(0, true);
  std::reverse(sorted.begin(), sorted.end());
  EXPECT_EQ(Names(), sorted);
}

TEST_F(ArrangementTest, ADomainTakesItsPlaceInTheTreeAtOnce) {
  Open();
  const auto refresh = GetRefresh();
  const auto domains = Server().KDomains();
  const auto domain = domains->Add();
  domain->SetName("Almost");
  domain->Update();
  const auto context = domains->Item(domain->Id());
  refresh->Notify(ObjectKind::Domain, ObjectAction::Created, context);
  EXPECT_THAT(TreeDomains(), ElementsAre("Almost", "Alpha", "Beta"));

  // A folder of the renamed domain stays open and selected, its list untouched.
  const std::vector<wxString> folder = {"59300", "59301", ToWx(domain->Id()), "59304"};
  Select(folder);
  Explorer().SelectListRow(0);
  for (const auto& [name, expected] :
       std::vector<std::pair<const char*, std::vector<wxString>>>{{"Zeta", {"Alpha", "Beta", "Zeta"}},
                                                                  {"Azur", {"Alpha", "Azur", "Beta"}},
                                                                  {"aaa", {"aaa", "Alpha", "Beta"}},
                                                                  {"aab", {"aab", "Alpha", "Beta"}}}) {
    domain->SetName(name);
    domain->Update();
    refresh->Notify(ObjectKind::Domain, ObjectAction::Changed, context);
    Settle();
    EXPECT_EQ(TreeDomains(), expected);
    EXPECT_EQ(form_->GetTreeNodeIndex(), Node(folder)) << name;
    EXPECT_TRUE(Explorer().IsTreeNodeExpanded(Node({"59300", "59301", ToWx(domain->Id())})));
    EXPECT_EQ(Explorer().SelectedListCount(), 1);
  }
  LanguageMenu::Switch(1025);
  Settle();
  EXPECT_THAT(TreeDomains(), ElementsAre("aab", "Alpha", "Beta"));
}

TEST_F(ArrangementTest, LanguageSwitchKeepsFilterOrderAndSelection) {
  Open();
  Select({"59300", "59303"});
  Explorer().SetFilter("l");
  Explorer().SortBy(1, true);
  Explorer().SelectAllListRows();
  // Each language has an order of its own.
  const auto sortedRows = [this] {
    auto rows = Rows();
    std::sort(rows.begin(), rows.end());
    return rows;
  };
  const auto rows = sortedRows();
  ASSERT_GT(rows.size(), 1u);
  for (const int code : {1025, 2052, 1025, 1033}) {
    LanguageMenu::Switch(code);
    Settle();
    EXPECT_EQ(Explorer().Filter(), "l") << code;
    EXPECT_EQ(Explorer().SortColumn(), 1);
    EXPECT_TRUE(Explorer().SortDescending());
    EXPECT_EQ(sortedRows(), rows);
    EXPECT_EQ(Explorer().SelectedListCount(), static_cast<std::int64_t>(rows.size()));
  }
}

TEST_F(ArrangementTest, HiddenBarsStayHidden) {
  for (const bool shown : {false, true}) {
    Open();
    EXPECT_EQ(form_->Tools().IsShown(), !shown);
    EXPECT_EQ(form_->Status().IsShown(), true);
    form_->Tools().Show(shown);
    ASSERT_TRUE(CloseWindow());
  }
  Open();
  EXPECT_TRUE(form_->Tools().IsShown());
  form_->Status().Show(false);
  ASSERT_TRUE(CloseWindow());
  Open();
  EXPECT_FALSE(form_->Status().IsShown());
}

}  // namespace mindloft::test
