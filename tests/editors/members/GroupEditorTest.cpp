#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <wx/checkbox.h>
#include <wx/listctrl.h>

#include "backend/directory/DirectoryLoader.h"
#include "backend/directory/Privileges.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "controls/texts/UseTextBox.h"
#include "core/Refresh.h"
#include "editors/LongChange.h"
#include "editors/members/frmDGroupProperty.h"
#include "platform/Clock.h"
#include "tests/editors/members/MembersFixture.h"
#include "tests/mainwindow/OtherConsole.h"

namespace mindloft::test {

using testing::ElementsAre;
using testing::IsEmpty;

class GroupEditorTest : public MembersFixture {
 protected:
  /// Opens the sheet and leaves it to the script; whether it has stored anything.
  bool Edit(const std::shared_ptr<Corvane::DGroup>& group, ModalDriver& modal, ModalDriver::Script script) {
    modal.ExpectForm("frmDGroupProperty", std::move(script));
    frmDGroupProperty sheet(nullptr);
    sheet.OpenWindow(group);
    return sheet.HasSaved();
  }
  /// Picks users of the picker that opens next.
  static void ExpectPick(ModalDriver& modal, std::vector<std::string> names) {
    modal.ExpectForm("frmListUser", [names](User& user) {
      Select(user, names);
      user.Click("cmdOK");
    });
  }
  static bool Locked(const User& user, const char* name) { return user.Find<UseTextBox>(name).Locked(); }
  std::vector<std::string> Members() { return Names(Group("Readers")->Members()); }
};

TEST_F(GroupEditorTest, ShowsTheGroupInOneLine) {
  ModalDriver modal;
  EXPECT_FALSE(Edit(Group("Readers"), modal, [](User& user) {
    EXPECT_EQ(user.Title(), "Properties: Readers");
    EXPECT_EQ(user.Read("txtName"), "Readers");
    EXPECT_EQ(user.Read("TxtDesc"), "first  second");
    EXPECT_TRUE(user.IsShown("txtDescription"));
    EXPECT_FALSE(user.IsEnabled("cmdApply"));
    user.SelectPage("sstGroup", 1);
    EXPECT_THAT(Listed(user), ElementsAre("anna", "back\\slash;1"));
    EXPECT_FALSE(user.IsEnabled("cmdApply"));
    user.Click("cmdOK");
  }));
}

TEST_F(GroupEditorTest, FlagsAndRightsDecideWhatCanBeChanged) {
  {
    DirectoryLoader loader(file_);
    GroupRecord fixed;
    fixed.domain = Corvane::IdFromText(domainId_);
    fixed.name = "Fixed";
    fixed.editable = false;
    loader.AddGroup(fixed);
    loader.Finish();
  }
  struct Case {
    const char* login;
    const char* group;
    bool name, description, privileges, members;
  };
  for (const auto& each : {Case{"admin", "Readers", true, true, true, true},
                           // The right to everything in a domain is never taken from those who manage it.
                           Case{"admin", "Administrators", false, true, false, true},
                           Case{"admin", "Fixed", false, false, false, false},
                           Case{"plain", "Readers", false, false, false, false}}) {
    LogIn(each.login);
    ModalDriver modal;
    Edit(Group(each.group), modal, [&](User& user) {
      const std::string where = std::string(each.login) + " " + each.group;
      EXPECT_EQ(!Locked(user, "txtName"), each.name) << where;
      EXPECT_EQ(!Locked(user, "TxtDesc"), each.description) << where;
      EXPECT_EQ(user.IsEnabled("chkRead"), each.privileges) << where;
      user.SelectPage("sstGroup", 1);
      EXPECT_EQ(user.IsEnabled("cmdAdd"), each.members) << where;
      EXPECT_EQ(user.IsEnabled("cmdRemove"), each.members) << where;
      EXPECT_FALSE(user.IsEnabled("cmdApply"));
      user.Click("cmdOK");
    });
  }
}

TEST_F(GroupEditorTest, ABlankNameIsRefusedInTwoWays) {
  const auto before = Changes();
  ModalDriver modal;
  EXPECT_FALSE(Edit(Group("Readers"), modal, [&](User& user) {
    user.Clear("txtName");
    user.Type("txtName", "  ");
    user.Clear("TxtDesc");
    modal.ExpectMessage(23058, wxID_OK);
    user.Click("cmdApply");
    EXPECT_TRUE(user.IsEnabled("cmdApply"));
    modal.ExpectMessage(51102, wxID_OK);
    user.Click("cmdOK");
    user.Click("cmdCancel");
  }));
  EXPECT_EQ(Changes(), before);
}

TEST_F(GroupEditorTest, AppliesAndGoesOn) {
  ModalDriver modal;
  EXPECT_TRUE(Edit(Group("Readers"), modal, [](User& user) {
    user.Clear("txtName");
    user.Type("txtName", " Writers ");
    user.Check("chkWrite");
    EXPECT_EQ(user.Title(), "Properties: Readers");
    user.Click("cmdApply");
    EXPECT_EQ(user.Title(), "Properties: Writers");
    EXPECT_EQ(user.Read("txtName"), "Writers");
    EXPECT_FALSE(user.IsEnabled("cmdApply"));
    user.Click("cmdCancel");
  }));
  const auto group = Group("Writers");
  ASSERT_TRUE(group);
  EXPECT_EQ(group->Description(), "first\r\nsecond") << "a description that was not touched keeps its lines";
  EXPECT_EQ(group->DomainPrivileges(), std::uint32_t{WriteDocuments});
  EXPECT_TRUE(Edit(group, modal, [](User& user) {
    user.Clear("TxtDesc");
    user.Type("TxtDesc", "one line");
    user.Click("cmdOK");
  }));
  EXPECT_EQ(Group("Writers")->Description(), "one line");
}

TEST_F(GroupEditorTest, StoresAdditionsAndRemovalsOnly) {
  ModalDriver modal;
  int views = 0;
  const auto view = GetUtility().OnRefresh([&views] { ++views; });
  EXPECT_TRUE(Edit(Group("Readers"), modal, [&](User& user) {
    user.SelectPage("sstGroup", 1);
    ExpectPick(modal, {"\u0639\u0645\u0631", "Zo\u00eb"});
    user.Click("cmdAdd");
    EXPECT_THAT(Listed(user), ElementsAre("Zo\u00eb", "\u0639\u0645\u0631", "anna", "back\\slash;1"));
    Select(user, {"\u0639\u0645\u0631", "anna"});
    user.Click("cmdRemove");
    EXPECT_THAT(Listed(user), ElementsAre("Zo\u00eb", "back\\slash;1"));
    EXPECT_THAT(Members(), ElementsAre("anna", "back\\slash;1")) << "nothing is stored before Apply";
    EXPECT_TRUE(user.IsEnabled("cmdApply"));
    user.Click("cmdApply");
    EXPECT_FALSE(user.IsEnabled("cmdApply"));
    EXPECT_THAT(Listed(user), ElementsAre("back\\slash;1", "Zo\u00eb"));
    user.Click("cmdOK");
  }));
  EXPECT_EQ(views, 1);
  EXPECT_THAT(Members(), ElementsAre("back\\slash;1", "Zo\u00eb"));
  const auto entry = Server().Log()->View().Page(0, 1).at(0);
  EXPECT_EQ(entry.action, "members");
  EXPECT_EQ(entry.before.find("back"), std::string::npos) << "who stays is not part of the change";
}

TEST_F(GroupEditorTest, WhatIsTakenBackLeavesNothingPending) {
  const auto before = Changes();
  ModalDriver modal;
  EXPECT_FALSE(Edit(Group("Readers"), modal, [&](User& user) {
    user.SelectPage("sstGroup", 1);
    ExpectPick(modal, {"Zo\u00eb"});
    user.Click("cmdAdd");
    Select(user, {"Zo\u00eb"});
    user.Click("cmdRemove");
    Select(user, {"anna"});
    user.Click("cmdRemove");
    EXPECT_THAT(Listed(user), ElementsAre("back\\slash;1"));
    ExpectPick(modal, {"anna"});
    user.Click("cmdAdd");
    EXPECT_THAT(Listed(user), ElementsAre("anna", "back\\slash;1"));
    // Nothing would be lost, so nothing is asked.
    user.Press(WXK_ESCAPE);
  }));
  EXPECT_EQ(Changes(), before);
}

TEST_F(GroupEditorTest, ALongChangeOfMembersCanBeCancelledAndCarriedOutAgain) {
  constexpr int kMany = 600;
  {
    DirectoryLoader loader(file_);
    const auto group = Corvane::IdFromText(Group("Readers")->Id());
    for (int number = 0; number < kMany; ++number) {
      UserRecord record;
      record.name = "member " + std::to_string(number);
      const auto user = loader.AddUser(record);
      loader.AddDomainUser(Corvane::IdFromText(domainId_), user);
      loader.AddGroupMember(group, user);
    }
    loader.Finish();
  }
  ModalDriver modal;
  EXPECT_TRUE(Edit(Group("Readers"), modal, [&](User& user) {
    user.SelectPage("sstGroup", 1);
    user.Press('A', wxMOD_CONTROL, "list");
    user.Click("cmdRemove");
    platform::FakeClock clock(1'000'000);
    clock.AdvanceAtReading(kPatience.count());
    bool seen = false;
    // It waits for the first moment in which the change lets the windows live.
    user.Form().CallAfter([&] {
      auto* progress = wxWindow::FindWindowByName("frmDeleteKDomainProgress");
      ASSERT_TRUE(progress && progress->IsShown());
      EXPECT_TRUE(User(*progress).Read("lblWhat").Contains("Readers"));
      User(*progress).Click("cmdCancel");
      seen = true;
    });
    user.Click("cmdOK");
    EXPECT_TRUE(seen);
    EXPECT_TRUE(user.IsShown("cmdOK"));
    EXPECT_TRUE(user.IsEnabled("cmdApply"));
    EXPECT_THAT(Listed(user), IsEmpty()) << "still pending";
    EXPECT_EQ(Group("Readers")->Members()->Count(), kMany + 2);
    user.Click("cmdApply");
    EXPECT_FALSE(user.IsEnabled("cmdApply"));
    EXPECT_EQ(wxWindow::FindWindowByName("frmDeleteKDomainProgress"), nullptr);
    user.Click("cmdOK");
  }));
  EXPECT_THAT(Members(), IsEmpty());
}

TEST_F(GroupEditorTest, PickedUsersWhoBecameMembersMeanwhileAreNotAddedTwice) {
  ModalDriver modal;
  EXPECT_TRUE(Edit(Group("Readers"), modal, [&](User& user) {
    user.SelectPage("sstGroup", 1);
    modal.ExpectForm("frmListUser", [&](User& picker) {
      Select(picker, {"\u0639\u0645\u0631", "Zo\u00eb"});
      OtherConsole other(file_, "admin", kPassword);
      other.Domain(domainId_)
          ->DGroups()
          ->Item(Group("Readers")->Id())
          ->ChangeMembers(ToUtf8(IdOf("Zo\u00eb")), "");
      picker.Click("cmdOK");
    });
    user.Click("cmdAdd");
    EXPECT_THAT(Listed(user), ElementsAre("\u0639\u0645\u0631", "anna", "back\\slash;1", "Zo\u00eb"));
    user.Click("cmdOK");
  }));
  EXPECT_EQ(Members().size(), 4u);
}

TEST_F(GroupEditorTest, DisabledAccountsAreAskedAboutBeforeTheyBecomeMembers) {
  const auto zoe = Server().Users()->Item(ToUtf8(IdOf("Zo\u00eb")));
  zoe->SetEnabled(false);
  zoe->Update();
  const std::vector<std::string> picked = {"smile \U0001F600", "Zo\u00eb"};
  ModalDriver modal;
  EXPECT_TRUE(Edit(Group("Readers"), modal, [&](User& user) {
    user.SelectPage("sstGroup", 1);
    ExpectPick(modal, picked);
    modal.ExpectForm("frmSelectUnit", [](User& asked) { asked.Click("cmdCancel"); });
    user.Click("cmdAdd");
    EXPECT_FALSE(user.IsEnabled("cmdApply"));
    ExpectPick(modal, picked);
    modal.ExpectForm("frmSelectUnit", [&](User& asked) {
      EXPECT_EQ(Listed(asked, "ctNotPrivilege"), picked);
      asked.Click("cmdOK");
    });
    user.Click("cmdAdd");
    EXPECT_THAT(Listed(user), ElementsAre(picked[0], "anna", "back\\slash;1"));
    user.Click("cmdOK");
  }));
  EXPECT_EQ(Members().size(), 3u);
}

TEST_F(GroupEditorTest, AsksBeforeChangesAreLost) {
  ModalDriver modal;
  EXPECT_FALSE(Edit(Group("Readers"), modal, [&](User& user) {
    user.SelectPage("sstGroup", 1);
    Select(user, {"anna"});
    user.Click("cmdRemove");
    modal.ExpectMessage(61600, wxID_NO);
    user.Press(WXK_ESCAPE);
    EXPECT_TRUE(user.IsShown("cmdOK"));
    user.Click("cmdCancel");
  }));
  EXPECT_THAT(Members(), ElementsAre("anna", "back\\slash;1"));
}

TEST_F(GroupEditorTest, MakesANewGroupWithItsMembers) {
  const auto group = Server().KDomains()->Item(domainId_)->KDomain()->DGroups()->Add();
  ModalDriver modal;
  EXPECT_TRUE(Edit(group, modal, [&](User& user) {
    EXPECT_EQ(user.Title(), "New group");
    EXPECT_FALSE(user.IsShown("txtDescription"));
    user.SelectPage("sstGroup", 1);
    EXPECT_THAT(Listed(user), IsEmpty());
    ExpectPick(modal, {"anna", "Zo\u00eb"});
    user.Click("cmdAdd");
    modal.ExpectMessage(23058, wxID_OK);
    user.Click("cmdApply");
    user.SelectPage("sstGroup", 0);
    user.Type("txtName", "Writers");
    user.Type("TxtDesc", "write");
    user.Click("cmdApply");
    EXPECT_EQ(user.Title(), "Properties: Writers");
    EXPECT_EQ(user.Read("txtDescription"), "write");
    user.SelectPage("sstGroup", 1);
    EXPECT_THAT(Listed(user), ElementsAre("anna", "Zo\u00eb"));
    user.Click("cmdOK");
  }));
  ASSERT_TRUE(Group("Writers"));
  EXPECT_THAT(Names(Group("Writers")->Members()), ElementsAre("anna", "Zo\u00eb"));
}

TEST_F(GroupEditorTest, ANameThatExistsKeepsTheChanges) {
  ModalDriver modal;
  EXPECT_FALSE(Edit(Group("Readers"), modal, [&](User& user) {
    user.Clear("txtName");
    user.Type("txtName", "ADMINISTRATORS");
    modal.ExpectForm("frmErrorManager", [](User& error) {
      EXPECT_TRUE(error.Title().Contains("'60043'")) << error.Title();
      error.Click("cmdOK");
    });
    user.Click("cmdApply");
    EXPECT_TRUE(user.IsEnabled("cmdApply"));
    EXPECT_EQ(user.Read("txtName"), "ADMINISTRATORS");
    user.Click("cmdCancel");
  }));
  EXPECT_TRUE(Group("Readers"));
}

TEST_F(GroupEditorTest, TakesItsTextsInAnotherLanguage) {
  ModalDriver modal;
  Edit(Group("Readers"), modal, [](User& user) {
    user.Clear("TxtDesc");
    user.Type("TxtDesc", "mine");
    user.SelectPage("sstGroup", 1);
    Select(user, {"anna"});
    user.Click("cmdRemove");
    ASSERT_TRUE(GetResource().SwitchLanguage(2052));
    GetRefresh()->NotifyLanguage();
    EXPECT_EQ(user.Title(), GetResource().GetString(59352) + " Readers");
    EXPECT_EQ(Explorer(user).Columns().at(0).caption, GetResource().GetString(59306));
    EXPECT_THAT(Listed(user), ElementsAre("back\\slash;1"));
    EXPECT_EQ(user.Read("TxtDesc"), "mine");
    user.Click("cmdCancel");
  });
}

class GroupConflictTest : public GroupEditorTest {
 protected:
  std::shared_ptr<Corvane::DGroup> Theirs() {
    return other_->Domain(domainId_)->DGroups()->Item(Group("Readers")->Id());
  }
  void SetUp() override {
    GroupEditorTest::SetUp();
    other_ = std::make_unique<OtherConsole>(file_, "admin", kPassword);
  }
  void TearDown() override {
    other_.reset();
    GroupEditorTest::TearDown();
  }
  std::unique_ptr<OtherConsole> other_;
};

TEST_F(GroupConflictTest, ChangesThatDoNotMeetAreMerged) {
  ModalDriver modal;
  EXPECT_TRUE(Edit(Group("Readers"), modal, [&](User& user) {
    user.Clear("TxtDesc");
    user.Type("TxtDesc", "mine");
    user.SelectPage("sstGroup", 1);
    Select(user, {"anna"});
    user.Click("cmdRemove");
    const auto theirs = Theirs();
    theirs->SetName("Theirs");
    theirs->Update();
    theirs->ChangeMembers(ToUtf8(IdOf("Zo\u00eb")), "");
    user.Click("cmdApply");
    EXPECT_EQ(user.Title(), "Properties: Theirs");
    EXPECT_THAT(Listed(user), ElementsAre("back\\slash;1", "Zo\u00eb"));
    user.Click("cmdOK");
  }));
  const auto stored = Group("Theirs");
  ASSERT_TRUE(stored);
  EXPECT_EQ(stored->Description(), "mine");
  EXPECT_THAT(Names(stored->Members()), ElementsAre("back\\slash;1", "Zo\u00eb"));
}

TEST_F(GroupConflictTest, ChangesThatMeetAreAskedAbout) {
  struct Case {
    const char* answer;
    const char* stored;
  };
  for (const auto& [answer, stored] :
       {Case{"cmdBack", "theirs"}, Case{"cmdTheirs", "theirs"}, Case{"cmdMine", "mine"}}) {
    ModalDriver modal;
    Edit(Group("Readers"), modal, [&, answer = answer](User& user) {
      user.Clear("TxtDesc");
      user.Type("TxtDesc", "mine");
      const auto theirs = Theirs();
      theirs->SetDescription("theirs");
      theirs->Update();
      modal.ExpectForm("frmConflict", [&](User& question) {
        EXPECT_EQ(question.Read("txtMine0"), "mine");
        EXPECT_EQ(question.Read("txtTheirs0"), "theirs");
        question.Click(answer);
      });
      user.Click("cmdApply");
      const bool back = answer == std::string("cmdBack");
      EXPECT_EQ(user.IsEnabled("cmdApply"), back);
      EXPECT_EQ(user.Read("TxtDesc"), back ? "mine" : Group("Readers")->Description());
      user.Click("cmdCancel");
    });
    EXPECT_EQ(Group("Readers")->Description(), stored) << answer;
    const auto again = Group("Readers");
    again->SetDescription("first");
    again->Update();
  }
}

TEST_F(GroupConflictTest, AGroupThatIsGoneIsTold) {
  ModalDriver modal;
  EXPECT_FALSE(Edit(Group("Readers"), modal, [&](User& user) {
    user.SelectPage("sstGroup", 1);
    Select(user, {"anna"});
    user.Click("cmdRemove");
    const auto theirs = Theirs();
    other_->Domain(domainId_)->DGroups()->Delete({{theirs->Stored().id, theirs->Stored().version}}, {});
    modal.ExpectForm("frmErrorManager", [](User& error) { error.Click("cmdOK"); });
    user.Click("cmdApply");
    EXPECT_TRUE(user.IsEnabled("cmdApply"));
    user.Click("cmdCancel");
  }));
}

}  // namespace mindloft::test
