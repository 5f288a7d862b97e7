#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "core/Refresh.h"
#include "tests/mainwindow/MainWindowTest.h"
#include "tests/mainwindow/OtherConsole.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

/// What other consoles store shows with the notification that concerns it, and only that.
class NotificationTest : public MainWindowTest {
 protected:
  OtherConsole Other() { return {file_, "admin", kPassword}; }
  void Notify(ObjectKind kind, ObjectAction action, std::any object) {
    GetRefresh()->Notify(kind, action, std::move(object));
    Settle();
  }
  std::vector<wxString> Names() {
    std::vector<wxString> names;
    for (const auto& row : Rows()) names.push_back(row.BeforeFirst('|'));
    return names;
  }
  /// Selects the row of that name and remembers it.
  void SelectRow(const wxString& name) {
    const auto names = Names();
    const auto found = std::ranges::find(names, name);
    ASSERT_NE(found, names.end()) << name;
    Explorer().SelectListRow(found - names.begin());
    selected_ = Explorer().SelectedListRows().at(0).key;
  }
  void ExpectStillSelected() {
    const auto rows = Explorer().SelectedListRows();
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows[0].key, selected_);
  }
  std::shared_ptr<Corvane::User> UserOf(Corvane::Server& server, const std::string& name) {
    Corvane::ViewOptions options;
    options.filter = name;
    auto view = server.Users()->View();
    view.SetOptions(options);
    return server.Users()->Item(Corvane::IdText(view.Page(0, 1).at(0).id));
  }
  std::vector<wxString> TreeTexts() {
    std::vector<wxString> texts;
    for (int index = 0; index < Explorer().TreeNodeCount(); ++index)
      texts.push_back(Explorer().TreeNodeText(index));
    return texts;
  }

  wxString selected_;
};

TEST_F(NotificationTest, ARefreshReadsTheListAnew) {
  Open("plain");
  Select({"59300", "59303"});
  SelectRow("plain");
  auto other = Other();
  const auto user = other.Server()->Users()->Add();
  user->SetName("a new one");
  user->Update();
  EXPECT_THAT(Names(), Not(Contains("a new one")));
  GetUtility().Refresh();
  Settle();
  EXPECT_THAT(Names(), Contains("a new one"));
  ExpectStillSelected();
}

TEST_F(NotificationTest, GroupsComeChangeAndGoInTheListOfTheirDomain) {
  Open();
  Select({"59300", "59301", DomainKey("Alpha"), "59304"});
  SelectRow("Readers");
  const auto tree = TreeTexts();
  const int node = form_->GetTreeNodeIndex();
  auto other = Other();
  const auto groups = [&](const char* domain) {
    return other.Domain(DomainKey(domain).ToStdString())->DGroups();
  };
  const auto group = groups("Alpha")->Add();
  group->SetName("Authors");
  group->Update();
  const auto ofBeta = groups("Beta")->OfKind(AdministratorsGroup);

  Notify(ObjectKind::UserGroup, ObjectAction::Changed, ofBeta);
  Notify(ObjectKind::User, ObjectAction::Created, UserOf(*other.Server(), "plain"));
  Notify(ObjectKind::DomainUser, ObjectAction::Created, UserOf(*other.Server(), "plain"));
  EXPECT_THAT(Names(), Not(Contains(wxString("Authors")))) << "nothing of this list was notified";

  Notify(ObjectKind::UserGroup, ObjectAction::Created, group);
  EXPECT_THAT(Names(), Contains(wxString("Authors")));
  ExpectStillSelected();

  group->SetName("Zoologists");
  group->SetDescription("who came last");
  group->Update();
  Notify(ObjectKind::UserGroup, ObjectAction::Changed, group);
  EXPECT_EQ(Rows().back(), "Zoologists|who came last");
  ExpectStillSelected();

  groups("Alpha")->Delete({{group->Stored().id, group->Stored().version}}, {});
  Notify(ObjectKind::UserGroup, ObjectAction::Deleted, group);
  EXPECT_THAT(Names(), Not(Contains(wxString("Zoologists"))));
  ExpectStillSelected();
  EXPECT_EQ(TreeTexts(), tree);
  EXPECT_EQ(form_->GetTreeNodeIndex(), node);
}

TEST_F(NotificationTest, DomainUsersComeAndGoInTheListOfTheDomainsUsers) {
  Open();
  Select({"59300", "59301", DomainKey("Alpha"), "59305"});
  SelectRow("back\\slash");
  auto other = Other();
  const auto user = UserOf(*other.Server(), "plain");
  const auto domain = other.Domain(DomainKey("Alpha").ToStdString());
  domain->ChangeUsers(user->Id(), "");
  Notify(ObjectKind::UserGroup, ObjectAction::Changed, domain->DGroups()->OfKind(AdministratorsGroup));
  EXPECT_THAT(Names(), ElementsAre("back\\slash"));
  Notify(ObjectKind::DomainUser, ObjectAction::Created, user);
  EXPECT_THAT(Names(), ElementsAre("back\\slash", "plain"));
  ExpectStillSelected();

  // A user's own change shows in a domain's list too.
  user->SetName("a plain one");
  user->Update();
  Notify(ObjectKind::User, ObjectAction::Changed, user);
  EXPECT_THAT(Names(), ElementsAre("a plain one", "back\\slash"));
  ExpectStillSelected();

  domain->ChangeUsers("", user->Id());
  Notify(ObjectKind::DomainUser, ObjectAction::Deleted, user);
  EXPECT_THAT(Names(), ElementsAre("back\\slash"));
  ExpectStillSelected();
}

TEST_F(NotificationTest, UsersComeChangeAndGoInTheListOfUsers) {
  Open();
  Select({"59300", "59303"});
  SelectRow("plain");
  const auto tree = TreeTexts();
  auto other = Other();
  const auto users = other.Server()->Users();
  const auto user = users->Add();
  user->SetName("newcomer");
  user->Update();
  Notify(ObjectKind::DomainUser, ObjectAction::Created, user);
  EXPECT_EQ(Explorer().ListCount(), 6);
  Notify(ObjectKind::User, ObjectAction::Created, user);
  EXPECT_EQ(Explorer().ListCount(), 7);
  ExpectStillSelected();

  user->SetName("Aaron");
  user->Update();
  other.Domain(DomainKey("Alpha").ToStdString())->DGroups();
  Notify(ObjectKind::User, ObjectAction::Changed, user);
  EXPECT_THAT(Names(), Contains(wxString("Aaron")));
  EXPECT_THAT(Names(), Not(Contains(wxString("newcomer"))));
  ExpectStillSelected();

  users->Delete({{user->Stored().id, user->Stored().version}});
  Notify(ObjectKind::User, ObjectAction::Deleted, user);
  EXPECT_EQ(Explorer().ListCount(), 6);
  ExpectStillSelected();
  EXPECT_EQ(TreeTexts(), tree);

  // What is selected goes itself: nothing is selected in its place.
  const auto plain = UserOf(*other.Server(), "plain");
  users->Delete({{plain->Stored().id, plain->Stored().version}});
  Notify(ObjectKind::User, ObjectAction::Deleted, plain);
  EXPECT_EQ(Explorer().ListCount(), 5);
  EXPECT_EQ(Explorer().SelectedListCount(), 0);
  WaitFor([&] { return Status(1) == "Entries: 5" && Status(2).empty(); }, "the counts");
}

TEST_F(NotificationTest, OnesOwnNewNameShowsInTheStatusBar) {
  Open();
  auto other = Other();
  const auto admin = UserOf(*other.Server(), "admin");
  admin->SetName("chief");
  admin->Update();
  Notify(ObjectKind::User, ObjectAction::Changed, admin);
  EXPECT_EQ(Status(0), GetResource().GetString(59662) + " chief");
}

TEST_F(NotificationTest, WhatOtherConsolesDidToDomainsTakesItsPlaceOnceOneIsKnownOrListed) {
  Open();
  const auto alphaKey = DomainKey("Alpha"), betaKey = DomainKey("Beta");
  const auto domains = [&] {
    std::vector<wxString> names;
    for (int index = 0; index < Explorer().TreeNodeCount(); ++index)
      if (Explorer().TreeNodeParent(index) == Node({"59300", "59301"}))
        names.push_back(Explorer().TreeNodeText(index));
    return names;
  };
  const std::vector<wxString> folder = {"59300", "59301", alphaKey, "59304"};
  Select(folder);
  SelectRow("Readers");
  auto other = Other();
  const auto alpha = other.Domain(alphaKey.ToStdString()), beta = other.Domain(betaKey.ToStdString());
  alpha->SetName("Zeta");
  alpha->Update();
  const auto made = other.Server()->KDomains()->Add();
  made->SetName("Gamma");
  made->Update();
  beta->SetDisabled(false);
  beta->Update();
  // The notification is about one of them; the others are known with it.
  Notify(ObjectKind::Domain, ObjectAction::Changed, other.Server()->KDomains()->Item(beta->Id()));
  EXPECT_THAT(domains(), ElementsAre("Beta", "Gamma", "Zeta"));
  EXPECT_EQ(form_->GetTreeNodeIndex(), Node(folder));
  EXPECT_TRUE(Explorer().IsTreeNodeExpanded(Node({"59300", "59301", alphaKey})));
  ExpectStillSelected();

  // Listing the domains shows what they are called now; the tree says the same.
  alpha->SetName("Aleph");
  alpha->Update();
  other.Server()->KDomains()->Delete({made->Stored().id, made->Stored().version});
  Select({"59300", "59301"});
  EXPECT_THAT(Names(), ElementsAre("Aleph", "Beta"));
  EXPECT_THAT(domains(), ElementsAre("Aleph", "Beta"));
  EXPECT_TRUE(Explorer().IsTreeNodeExpanded(Node({"59300", "59301", alphaKey})));
  Select(folder);
  EXPECT_THAT(Names(), Contains(wxString("Readers")));

  // The domain that is looked at is gone: its folder's place is the folder of all.
  other.Server()->KDomains()->Delete({alpha->Stored().id, alpha->Stored().version});
  Notify(ObjectKind::Domain, ObjectAction::Changed, other.Server()->KDomains()->Item(beta->Id()));
  EXPECT_THAT(domains(), ElementsAre("Beta"));
  EXPECT_EQ(form_->GetTreeNodeIndex(), Node({"59300", "59301"}));
  EXPECT_THAT(Names(), ElementsAre("Beta"));
}

}  // namespace mindloft::test
