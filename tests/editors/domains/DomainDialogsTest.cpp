#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <wx/bookctrl.h>
#include <wx/choice.h>
#include <wx/frame.h>
#include <wx/panel.h>
#include <wx/sizer.h>
#include <wx/textctrl.h>
#include <wx/uiaction.h>

#include "backend/errors/Error.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "editors/LongChange.h"
#include "editors/domains/frmDUserAdd.h"
#include "editors/domains/frmDUserProperty.h"
#include "editors/domains/frmDomainInfo.h"
#include "platform/Clock.h"
#include "tests/editors/members/MembersFixture.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

/// The dialogs on a knowledge domain and on its users.
class DomainDialogsTest : public MembersFixture {
 protected:
  std::shared_ptr<Corvane::DomainContext> Context(const std::string& id) {
    return Server().KDomains()->Item(id);
  }
  std::shared_ptr<Corvane::KDomain> Alpha() { return Context(domainId_)->KDomain(); }
  std::shared_ptr<Corvane::User> UserOf(const std::string& name) {
    return Server().Users()->Item(IdOf(name).ToStdString());
  }
  static std::vector<wxString> Tabs(const User& user) {
    std::vector<wxString> tabs;
    const auto& book = user.Find<wxBookCtrlBase>("sstDomain");
    for (std::size_t page = 0; page < book.GetPageCount(); ++page)
      tabs.push_back(book.GetPage(page)->GetName());
    return tabs;
  }
  void SelectNamed(const User& user, const char* list, const wxString& name) {
    auto& explorer = Explorer(user, list);
    for (std::int64_t row = 0; row < explorer.ListCount(); ++row)
      if (explorer.ListRow(row).fields.BeforeFirst(wxUniChar(1)) == name) return explorer.SelectListRow(row);
    FAIL() << name;
  }
  ModalDriver modal_;
};

TEST_F(DomainDialogsTest, ANewDomainTakesOverWhatIsWanted) {
  struct Case {
    bool groups, users, members;
    std::int64_t expectedUsers, expectedReaders;  ///< -1: no such group
  };
  for (const auto& [groups, users, members, expectedUsers, expectedReaders] :
       {Case{true, true, true, 6, 2}, Case{true, false, false, 0, 0}, Case{false, true, false, 6, -1},
        Case{true, true, false, 6, 0}}) {
    SCOPED_TRACE(expectedUsers * 10 + expectedReaders);
    const auto domain = Server().KDomains()->Add();
    modal_.ExpectForm("frmDomainInfo", [&](User& user) {
      EXPECT_THAT(Tabs(user), ElementsAre("pnlGeneral", "pnlDesc", "pnlCopy"));
      user.Type("txtName", wxString::Format("Copy %d%d%d", groups, users, members));
      user.SelectPage("sstDomain", 2);
      EXPECT_FALSE(user.IsEnabled("chkCopyGroups"));
      SelectNamed(user, "ctSource", "Alpha");
      Settle();
      user.Check("chkCopyMembers", members);
      user.Check("chkCopyGroups", groups);
      user.Check("chkCopyUsers", users);
      EXPECT_EQ(user.IsEnabled("chkCopyMembers"), groups && users);
      user.Click("cmdApply");
      // The domain is stored: now it has groups and users of its own.
      EXPECT_THAT(Tabs(user), ElementsAre("pnlGeneral", "pnlDesc", "pnlGroups", "pnlUsers"));
      user.SelectPage("sstDomain", 3);
      EXPECT_EQ(Explorer(user).ListCount(), expectedUsers);
      user.SelectPage("sstDomain", 2);
      EXPECT_EQ(Explorer(user, "ctGroup").ListCount(), expectedReaders < 0 ? 1 : 2);
      EXPECT_FALSE(user.IsEnabled("cmdApply"));
      user.Click("cmdOK");
    });
    frmDomainInfo(nullptr).OpenWindow(domain);
    ASSERT_FALSE(domain->IsNew());
    std::int64_t readers = -1;
    for (const auto& group : domain->DGroups()->View().Page(0, 10))
      if (group.name == "Readers")
        readers = domain->DGroups()->Item(Corvane::IdText(group.id))->Members()->Count();
    EXPECT_EQ(readers, expectedReaders);
    EXPECT_EQ(domain->DUsers()->Count(), expectedUsers);
  }
}

TEST_F(DomainDialogsTest, WhatADomainMayNotBeCalledIsRefusedByNumber) {
  struct Case {
    wxString name;
    int number;
  };
  for (const auto& [name, number] : {Case{"alpha", 60043}, Case{wxString('x', 101), 60044}}) {
    SCOPED_TRACE(number);
    const auto domain = Server().KDomains()->Add();
    modal_.ExpectForm("frmDomainInfo", [&](User& user) {
      modal_.ExpectMessage(51102, wxID_OK);
      user.Click("cmdOK");
      user.Type("txtName", name);
      modal_.ExpectForm("frmErrorManager", [number = number](User& error) {
        EXPECT_TRUE(error.Title().Contains(wxString::Format("'%d'", number))) << error.Title();
        error.Click("cmdOK");
      });
      user.Click("cmdApply");
      EXPECT_TRUE(user.IsEnabled("cmdApply"));
      user.Click("cmdCancel");
    });
    frmDomainInfo(nullptr).OpenWindow(domain);
    EXPECT_TRUE(domain->IsNew());
  }
  EXPECT_EQ(Server().KDomains()->Count(), 1);
}

TEST_F(DomainDialogsTest, ChangesOfOthersAreMergedAndUsersComeAndGoWithThem) {
  const auto domain = Alpha();
  modal_.ExpectForm("frmDomainInfo", [&](User& user) {
    modal_.ExpectForm("frmStyleSelect", [](User& picker) {
      EXPECT_EQ(picker.Find<wxChoice>("CmbStyle").GetSelection(), 0);
      picker.Choose("CmbStyle", "Slate");
      picker.Click("cmdOK");
    });
    user.Click("cmdStyle");
    EXPECT_EQ(user.Read("txtStyle"), "Slate");
    user.Check("chkDisabled");
    // Meanwhile another console gives it another name and takes a user away.
    const auto theirs = Alpha();
    theirs->SetName("Omega");
    theirs->Update();
    theirs->ChangeUsers("", IdOf("anna").ToStdString());
    user.Click("cmdApply");
    EXPECT_EQ(user.Read("txtName"), "Omega");
    user.SelectPage("sstDomain", 3);
    EXPECT_THAT(Listed(user), Not(Contains("anna")));
    SelectNamed(user, "ctUser", wxString::FromUTF8("Zo\u00eb"));
    Settle();
    user.Click("cmdRemove");
    user.Click("cmdOK");
  });
  frmDomainInfo(nullptr).OpenWindow(domain);
  const auto stored = Alpha();
  EXPECT_EQ(stored->Name(), "Omega");
  EXPECT_TRUE(stored->Disabled());
  EXPECT_EQ(Server().Styles()->Item(stored->StyleId())->Name(), "Slate");
  EXPECT_EQ(stored->DUsers()->Count(), 4);

  // Both change the same field: the user says which holds.
  const auto again = Alpha();
  modal_.ExpectForm("frmDomainInfo", [&](User& user) {
    user.Clear("txtName");
    user.Type("txtName", "Mine");
    const auto theirs = Alpha();
    theirs->SetName("Theirs");
    theirs->Update();
    modal_.ExpectForm("frmConflict", [](User& conflict) { conflict.Click("cmdTheirs"); });
    user.Click("cmdOK");
  });
  frmDomainInfo(nullptr).OpenWindow(again);
  EXPECT_EQ(Alpha()->Name(), "Theirs");
}

TEST_F(DomainDialogsTest, ClosingAsksOnlyWhenSomethingWasChanged) {
  modal_.ExpectForm("frmDomainInfo", [&](User& user) { user.Form().Close(); });
  frmDomainInfo(nullptr).OpenWindow(Alpha());
  modal_.ExpectForm("frmDomainInfo", [&](User& user) {
    user.SelectPage("sstDomain", 1);
    user.Type("TXTextControl", "changed");
    modal_.ExpectMessage(61600, wxID_NO);
    user.Form().Close();
    modal_.ExpectMessage(61600, wxID_YES);
    user.Form().Close();
  });
  frmDomainInfo(nullptr).OpenWindow(Alpha());
  EXPECT_EQ(Alpha()->Description(), "");
}

TEST_F(DomainDialogsTest, WithoutRightsAllCanBeSeenAndNothingChanged) {
  LogIn("plain");
  const auto before = Alpha()->Stored();
  modal_.ExpectForm("frmDomainInfo", [&](User& user) {
    EXPECT_EQ(user.Read("txtName"), "Alpha");
    for (const char* control : {"cmdStyle", "chkDisabled", "cmdApply", "cmdAdd", "cmdRemove"})
      EXPECT_FALSE(user.IsEnabled(control)) << control;
    EXPECT_THROW(user.Type("txtName", "x"), std::runtime_error);
    user.SelectPage("sstDomain", 3);
    EXPECT_EQ(Explorer(user).ListCount(), 6);
    user.Click("cmdOK");
  });
  frmDomainInfo(nullptr).OpenWindow(Alpha());
  modal_.ExpectForm("frmDUserProperty", [&](User& user) {
    auto& groups = Explorer(user, "ctGroup");
    groups.ClickCheck(0);
    EXPECT_FALSE(user.IsEnabled("cmdApply"));
    user.Click("cmdOK");
  });
  EXPECT_FALSE(frmDUserProperty(nullptr).OpenWindow(UserOf("anna"), Context(domainId_)));
  EXPECT_EQ(Alpha()->Stored(), before);
  // The back end refuses as well.
  EXPECT_THROW(Alpha()->ChangeUsers("", UserOf("anna")->Id()), Error);
}

TEST_F(DomainDialogsTest, UsersAreFoundSelectedAndAddedWhateverOthersDoMeanwhile) {
  frmDUserAdd form(nullptr);
  modal_.ExpectForm("frmDUserAdd", [&](User& user) {
    EXPECT_THAT(Listed(user), ElementsAre("admin", "plain"));
    EXPECT_FALSE(user.IsEnabled("cmdOK"));
    auto& explorer = Explorer(user);
    explorer.SelectAllListRows();
    Settle();
    explorer.SortBy(0, true);
    explorer.SetFilter("PLA");
    EXPECT_THAT(Listed(user), ElementsAre("plain"));
    explorer.SelectListRow(0);
    Settle();
    // Another console is at work in the same domain.
    Alpha()->ChangeUsers("", IdOf("anna").ToStdString());
    user.Click("cmdOK");
  });
  EXPECT_EQ(form.OpenWindow(Alpha()), wxID_OK);
  ASSERT_TRUE(form.FirstAdded());
  EXPECT_EQ(form.FirstAdded()->Name(), "plain");
  const auto names = Names(Alpha()->DUsers());
  EXPECT_THAT(names, Contains("plain"));
  EXPECT_THAT(names, Not(Contains("anna")));
  EXPECT_THAT(names, Not(Contains("admin")));

  frmDUserAdd cancelled(nullptr);
  modal_.ExpectForm("frmDUserAdd", [&](User& user) {
    Explorer(user).SelectAllListRows();
    user.Click("cmdCancel");
  });
  EXPECT_EQ(cancelled.OpenWindow(Alpha()), wxID_CANCEL);
  EXPECT_EQ(Names(Alpha()->DUsers()), names);
}

TEST_F(DomainDialogsTest, GroupsOfADomainUserAreCheckedAndUnchecked) {
  const auto anna = UserOf("anna");
  const auto changes = Changes();
  modal_.ExpectForm("frmDUserProperty", [&](User& user) {
    auto& groups = Explorer(user, "ctGroup");
    ASSERT_EQ(groups.ListCount(), 2);
    groups.ClickCheck(0);
    groups.ClickCheck(0);
    EXPECT_FALSE(user.IsEnabled("cmdApply")) << "back where it was";
    groups.ClickCheck(0);
    groups.ClickCheck(1);
    // Her record is changed elsewhere: that does not stand against it.
    const auto theirs = UserOf("anna");
    theirs->SetDepartment("else");
    theirs->Update();
    user.Click("cmdApply");
    EXPECT_FALSE(user.IsEnabled("cmdApply"));
    user.Click("cmdOK");
  });
  EXPECT_TRUE(frmDUserProperty(nullptr).OpenWindow(anna, Context(domainId_)));
  EXPECT_EQ(Changes(), changes + 2);
  EXPECT_THAT(Names(Group("Readers")->Members()), ElementsAre("back\\slash;1"));
  EXPECT_THAT(Names(Group("Administrators")->Members()), Contains("anna"));
  EXPECT_EQ(UserOf("anna")->Department(), "else");
}

TEST_F(DomainDialogsTest, AfterALongChangeTheKeyboardIsWhereItWas) {
  wxFrame frame(nullptr, wxID_ANY, "owner", wxDefaultPosition, wxSize(300, 200));
  auto* panel = new wxPanel(&frame);
  auto* sizer = new wxBoxSizer(wxVERTICAL);
  sizer->Add(new wxTextCtrl(panel, wxID_ANY));
  auto* box = new wxTextCtrl(panel, wxID_ANY);
  sizer->Add(box);
  panel->SetSizer(sizer);
  frame.Show();
  frame.Raise();
  box->SetFocus();
  WaitFor([&] { return frame.IsActive() && box->HasFocus(); }, "the focus in the second box");
  EXPECT_TRUE(RunLongChange(&frame, "long", std::chrono::milliseconds(0), [&](const Progress& progress) {
    progress(0, 2);
    WaitFor([&] { return !frame.IsActive(); }, "the progress in front");
    progress(2, 2);
  }));
  WaitFor([&] { return frame.IsActive(); }, "the owner in front");
  wxUIActionSimulator().Char('x');
  WaitFor([&] { return box->GetValue() == "x"; }, "the character in the second box");
}

TEST_F(DomainDialogsTest, ALongChangeShowsItselfOnlyWhenItIsLong) {
  platform::FakeClock clock(1'000'000);
  const auto window = [] { return wxWindow::FindWindowByName("frmDeleteKDomainProgress"); };
  EXPECT_TRUE(RunLongChange(nullptr, "soon done", kPatience, [&](const Progress& progress) {
    clock.Advance(499);
    EXPECT_TRUE(progress(250, 1000));
    EXPECT_FALSE(window());
  }));
  EXPECT_FALSE(RunLongChange(nullptr, "long", kPatience, [&](const Progress& progress) {
    clock.Advance(501);
    EXPECT_TRUE(progress(250, 1000));
    ASSERT_TRUE(window());
    User user(*window());
    EXPECT_TRUE(user.Read("lblRows").Contains("1,000"));
    clock.Advance(100);
    user.Press(WXK_ESCAPE);
    EXPECT_FALSE(progress(500, 1000));
    throw Error(ErrorNumber::Cancelled);
  }));
  EXPECT_FALSE(window());
  EXPECT_THROW(RunLongChange(nullptr, "wrong", std::chrono::milliseconds(0),
                             [](const Progress& progress) {
                               progress(0, 0);
                               throw Error(ErrorNumber::Storage);
                             }),
               Error);
  EXPECT_FALSE(window());
}

TEST_F(DomainDialogsTest, ALongChangeTakesTheMouseAboveAModalForm) {
  modal_.ExpectForm("frmDUserAdd", [&](User& sheet) {
    bool cancelled = false;
    EXPECT_FALSE(
        RunLongChange(&sheet.Form(), "long", std::chrono::milliseconds(0), [&](const Progress& progress) {
          wxUIActionSimulator mouse;
          bool clicked = false;
          WaitFor(
              [&] {
                if (!progress(1, 2)) return cancelled = true;
                auto* window = wxWindow::FindWindowByName("frmDeleteKDomainProgress");
                auto* button = window ? wxWindow::FindWindowByName("cmdCancel", window) : nullptr;
                if (!clicked && button && button->IsShownOnScreen()) {
                  Settle();
                  mouse.MouseMove(button->GetScreenRect().GetPosition() + button->GetSize() / 2);
                  mouse.MouseClick();
                  clicked = true;
                }
                return false;
              },
              "the click on Cancel");
          throw Error(ErrorNumber::Cancelled);
        }));
    EXPECT_TRUE(cancelled);
    sheet.Click("cmdCancel");
  });
  frmDUserAdd(nullptr).OpenWindow(Alpha());
}

}  // namespace mindloft::test
