#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <wx/listctrl.h>

#include "backend/corvane/IdList.h"
#include "backend/directory/DirectoryLoader.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "mainwindow/CommandSet.h"
#include "mainwindow/DirectoryTree.h"
#include "mainwindow/objects/Questions.h"
#include "tests/mainwindow/MainWindowTest.h"
#include "tests/mainwindow/OtherConsole.h"
#include "tests/support/gui/ModalDriver.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

/// New, delete and properties in the real window, over the real directory, with the real editors.
class ObjectCommandsTest : public MainWindowTest {
 protected:
  void SelectRow(const wxString& name) {
    for (std::int64_t row = 0; row < Explorer().ListCount(); ++row)
      if (Explorer().ListRow(row).fields.BeforeFirst(wxUniChar(1)) == name) {
        Explorer().SelectListRow(row);
        Settle();
        return;
      }
    FAIL() << "no row " << name;
  }
  std::vector<wxString> Names() {
    std::vector<wxString> names;
    for (const auto& row : Rows()) names.push_back(row.BeforeFirst('|'));
    return names;
  }
  std::vector<wxString> Folder(const char* domain, const char* key) {
    return {"59300", "59301", DomainKey(domain), key};
  }
  /// A key pressed in the list.
  void Press(int key) {
    User(*form_).Press(key, 0, "list");
    Settle();
  }
  /// A menu command; some stand in context menus only.
  void Run(const char* name) {
    const auto* command = form_->Commands().Find(name);
    ASSERT_TRUE(command && CommandSet::Enabled(*command, form_->Selection().Read())) << name;
    form_->Commands().Run(*command, form_->Selection().Read());
    form_->UpdateCommands();
    Settle();
  }
  OtherConsole Other() { return {file_, "admin", kPassword}; }
};

TEST_F(ObjectCommandsTest, RefusalsComeBeforeAnyQuestion) {
  struct Case {
    const char* who;
    std::vector<wxString> node;
    const char* row;  ///< empty: the node itself
    int message;
  };
  Open();
  const std::vector<Case> cases = {
      {"admin", {"59300", "59303"}, "admin", 58951},
      {"plain", {"59300", "59303"}, "plain", 58951},
      {"plain", {"59300", "59303"}, "admin", 59364},
      {"plain", {"59300", "59301"}, "Alpha", 59363},
      {"plain", {"59300", "59301", DomainKey("Alpha")}, "", 59363},
      {"plain", Folder("Alpha", "59304"), "Readers", 61704},
      {"plain", Folder("Alpha", "59305"), "back\\slash", 61705},
      {"admin", Folder("Alpha", "59304"), "Administrators", 60048},
  };
  std::string user = "admin";
  for (const auto& test : cases) {
    SCOPED_TRACE(test.who + std::string(" ") + test.row + " " + std::to_string(test.message));
    if (user != test.who) {
      ASSERT_TRUE(CloseWindow());
      user = test.who;
      Open(user);
    }
    Select(test.node);
    if (*test.row) SelectRow(test.row);
    const auto before = Rows();
    ModalDriver modal;
    modal.ExpectMessage(test.message, wxID_OK);
    Press(WXK_DELETE);
    EXPECT_EQ(Rows(), before);
    EXPECT_EQ(IsEnabled("mnuFileDelete"), user != "plain");
  }
}

TEST_F(ObjectCommandsTest, DeletingAsksOnceAndTouchesOnlyWhatWasDeleted) {
  struct Case {
    std::vector<wxString> node;
    std::vector<wxString> rows;
    const char* command;
    int question;
  };
  Open();
  const auto beta = DomainKey("Beta");
  const std::vector<Case> cases = {
      {{"59300", "59303"}, {"plain"}, "mnuUserDelete", 59359},
      {Folder("Alpha", "59305"), {"back\\slash"}, "mnuDUserDelete", 59361},
      {Folder("Alpha", "59304"), {"Readers"}, "mnuGroupDelete", 59360},
      {{"59300", "59301"}, {"Beta"}, "mnuDomainDelete", 59311},
  };
  for (const auto& [node, rows, command, question] : cases) {
    SCOPED_TRACE(command);
    Select(node);
    const int selected = form_->GetTreeNodeIndex();
    const auto before = Names();
    SelectRow(rows.front());
    ModalDriver modal;
    modal.ExpectMessage(question, wxID_NO);
    Run("mnuFileDelete");
    EXPECT_EQ(Names(), before);
    ASSERT_EQ(Explorer().SelectedListCount(), 1);
    modal.ExpectMessage(question, wxID_YES);
    Run("mnuFileDelete");
    EXPECT_THAT(Names(), Not(Contains(rows.front())));
    EXPECT_EQ(Names().size(), before.size() - 1);
    EXPECT_EQ(form_->GetTreeNodeIndex(), selected);
    EXPECT_EQ(Explorer().SelectedListCount(), 0);
    EXPECT_FALSE(IsEnabled("mnuFileDelete"));
  }
  EXPECT_EQ(Node({"59300", "59301", beta}), -1);
  Select({"59300", "59303"});
  EXPECT_THAT(Names(), Contains(wxString("back\\slash"))) << "only the access was taken away";
}

TEST_F(ObjectCommandsTest, SeveralRowsGoWithOneQuestionThatTellsTheirNumber) {
  Open();
  Select({"59300", "59303"});
  const auto before = Explorer().ListCount();
  Explorer().SetFilter("Full");
  Explorer().SelectAllListRows();
  Settle();
  ASSERT_EQ(Explorer().SelectedListCount(), 5);
  ModalDriver modal;
  modal.ExpectMessage(61700, wxID_YES);
  Press(WXK_DELETE);
  EXPECT_TRUE(modal.LastMessage().Contains("5")) << modal.LastMessage();
  EXPECT_EQ(Explorer().ListCount(), 0);
  Explorer().SetFilter({});
  EXPECT_EQ(Explorer().ListCount(), before - 5);

  // One's own account among others keeps all of them.
  Explorer().SelectAllListRows();
  modal.ExpectMessage(58951, wxID_OK);
  Press(WXK_DELETE);
  EXPECT_EQ(Explorer().ListCount(), before - 5);

  Select({"59300", "59301"});
  Explorer().SelectAllListRows();
  modal.ExpectMessage(61703, wxID_YES);
  Press(WXK_DELETE);
  EXPECT_TRUE(modal.LastMessage().Contains("2")) << modal.LastMessage();
  EXPECT_EQ(Explorer().ListCount(), 0);
  EXPECT_EQ(Explorer().TreeNodeCount(), 4);
}

TEST_F(ObjectCommandsTest, MoreThanOneCommandDeletesAreRefusedWithTheirNumbers) {
  {
    DirectoryLoader loader(file_);
    for (std::int64_t number = 0; number <= kMostDeletedAtOnce; ++number) {
      UserRecord record;
      record.name = "many " + std::to_string(number);
      loader.AddUser(record);
    }
    loader.Finish();
  }
  Open();
  Select({"59300", "59303"});
  Explorer().SetFilter("many");
  Explorer().SelectAllListRows();
  Settle();
  ASSERT_EQ(Explorer().SelectedListCount(), kMostDeletedAtOnce + 1);
  ModalDriver modal;
  modal.ExpectMessage(61780, wxID_OK);
  Press(WXK_DELETE);
  EXPECT_TRUE(modal.LastMessage().Contains("50,000") && modal.LastMessage().Contains("50,001"))
      << modal.LastMessage();
  // One fewer may go: they are asked about.
  User(*form_).Press(WXK_HOME, 0, "list");
  User(*form_).Press(WXK_END, wxMOD_SHIFT, "list");
  User(*form_).Press(WXK_UP, wxMOD_SHIFT, "list");
  ASSERT_EQ(Explorer().SelectedListCount(), kMostDeletedAtOnce);
  modal.ExpectMessage(61700, wxID_NO);
  Press(WXK_DELETE);
  EXPECT_EQ(Explorer().ListCount(), kMostDeletedAtOnce + 1);
}

TEST_F(ObjectCommandsTest, WhatAnotherConsoleHasDeletedIsToldAndNothingElseHappens) {
  Open();
  auto other = Other();
  const auto domainKey = DomainKey("Alpha").ToStdString();
  ModalDriver modal;

  Select(Folder("Alpha", "59305"));
  SelectRow("back\\slash");
  const auto user = Explorer().ListRow(0).key;
  other.Domain(domainKey)->ChangeUsers("", user.ToStdString());
  modal.ExpectMessage(55656, wxID_OK);
  Run("mnuFileProperties");
  modal.ExpectMessage(59361, wxID_YES);
  modal.ExpectMessage(55656, wxID_OK);
  Run("mnuFileDelete");

  Select({"59300", "59303"});
  SelectRow("plain");
  const auto plain = Explorer().SelectedListRows().front().key.ToStdString();
  const auto record = other.Server()->Users()->Item(plain)->Stored();
  other.Server()->Users()->Delete({{record.id, record.version}});
  for (const char* command : {"mnuFileProperties", "mnuFileDelete"}) {
    modal.ExpectMessage(55656, wxID_OK);
    Run(command);
  }

  Select(Folder("Alpha", "59304"));
  SelectRow("Readers");
  const auto groups = other.Domain(domainKey)->DGroups();
  const auto group = groups->Item(Explorer().SelectedListRows().front().key.ToStdString())->Stored();
  groups->Delete({{group.id, group.version}}, {});
  for (const char* command : {"mnuFileProperties", "mnuFileDelete"}) {
    modal.ExpectMessage(60041, wxID_OK);
    Run(command);
  }
}

TEST_F(ObjectCommandsTest, RolesAreNotMadeAndACancelledEditorLeavesNothing) {
  Open();
  ModalDriver modal;
  Select({"59300", "59302"});
  const auto roles = Rows();
  Press(WXK_INSERT);
  form_->NewObject("59302", {}, 0);
  EXPECT_EQ(Rows(), roles);

  struct Case {
    std::vector<wxString> node;
    const char* form;
  };
  for (const auto& [node, form] :
       {Case{{"59300", "59303"}, "frmUserDetail"}, Case{{"59300", "59301"}, "frmDomainInfo"},
        Case{Folder("Alpha", "59304"), "frmDGroupProperty"}, Case{Folder("Alpha", "59305"), "frmDUserAdd"}}) {
    SCOPED_TRACE(form);
    Select(node);
    const auto before = Rows();
    modal.ExpectForm(form, [](User& user) { user.Click("cmdCancel"); });
    Press(WXK_INSERT);
    EXPECT_EQ(Rows(), before);
  }
  // A group of a domain that is gone meanwhile cannot be made.
  form_->NewObject("59304", "no such key", 0);
}

TEST_F(ObjectCommandsTest, ADomainIsMadeShownRenamedAndDeletedWhileItsPlaceFollows) {
  Open();
  ModalDriver modal;
  Select({"59300", "59301"});
  SelectRow("Alpha");
  modal.ExpectForm("frmDomainInfo", [](User& user) {
    user.Type("txtName", "Aardvarks");
    user.SelectPage("sstDomain", 1);
    user.Type("TXTextControl", "about them");
    user.Click("cmdOK");
  });
  Run("mnuDomainaddNew");
  EXPECT_THAT(Names(), ElementsAre("Aardvarks", "Alpha", "Beta"));
  EXPECT_EQ(Explorer().SelectedListRows().at(0).key, DomainKey("Alpha")) << "the selection stays";
  const int node = Node({"59300", "59301", DomainKey("Aardvarks")});
  ASSERT_GE(node, 0);

  SelectRow("Aardvarks");
  modal.ExpectForm("frmDomainInfo", [](User& user) {
    user.Clear("txtName");
    user.Type("txtName", "Zebras");
    user.Check("chkDisabled");
    user.Click("cmdOK");
  });
  User(*form_).Press(WXK_RETURN, 0, "list");
  Settle();
  EXPECT_THAT(Names(), ElementsAre("Alpha", "Beta", "Zebras"));
  EXPECT_EQ(Rows().back(), "Zebras|about them|" + GetResource().GetString(61106));
  EXPECT_GT(Node({"59300", "59301", DomainKey("Zebras")}), Node({"59300", "59301", DomainKey("Beta")}));

  Select({"59300", "59301", DomainKey("Zebras"), "59304"});
  Select({"59300", "59301", DomainKey("Zebras")});
  modal.ExpectMessage(59311, wxID_YES);
  Press(WXK_DELETE);
  EXPECT_EQ(Explorer().TreeNodeKey(form_->GetTreeNodeIndex()), "59301");
  EXPECT_THAT(Names(), ElementsAre("Alpha", "Beta"));
}

TEST_F(ObjectCommandsTest, ACancelledDeletionLeavesTheDomainWhole) {
  Open();
  // Enough rows for several reports.
  std::string ids;
  {
    auto other = Other();
    for (int number = 0; number < 600; ++number) {
      const auto user = other.Server()->Users()->Add();
      user->SetName("member " + std::to_string(number));
      user->Update();
      ids += user->Id() + ";";
    }
    other.Domain(DomainKey("Beta").ToStdString())->ChangeUsers(ids, "");
  }
  Select({"59300", "59301"});
  SelectRow("Beta");
  ModalDriver modal;
  for (const bool cancel : {true, false}) {
    bool seen = false;
    // It waits for the first moment in which the deletion lets the windows live.
    form_->CallAfter([&] {
      auto* window = wxWindow::FindWindowByName("frmDeleteKDomainProgress");
      ASSERT_TRUE(window && window->IsShown());
      seen = true;
      EXPECT_FALSE(form_->IsEnabled());
      if (cancel) User(*window).Click("cmdCancel");
    });
    modal.ExpectMessage(59311, wxID_YES);
    Run("mnuDomainDelete");
    EXPECT_TRUE(seen);
    EXPECT_TRUE(form_->IsEnabled());
    EXPECT_EQ(wxWindow::FindWindowByName("frmDeleteKDomainProgress"), nullptr);
    if (cancel) {
      ASSERT_THAT(Names(), ElementsAre("Alpha", "Beta"));
      EXPECT_EQ(Server().KDomains()->Item(DomainKey("Beta").ToStdString())->KDomain()->DUsers()->Count(),
                600);
      EXPECT_EQ(Explorer().SelectedListCount(), 1);
    }
  }
  EXPECT_THAT(Names(), ElementsAre("Alpha"));
  Select({"59300", "59303"});
  EXPECT_EQ(Explorer().ListCount(), 606);
}

}  // namespace mindloft::test
