#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "backend/tessaline/Services.h"
#include "mainwindow/ApplicationServices.h"
#include "mainwindow/CommandLineState.h"
#include "mainwindow/DirectoryTree.h"
#include "tests/mainwindow/MainWindowTest.h"
#include "tests/support/gui/ModalDriver.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {

using testing::ElementsAre;
using testing::IsEmpty;

class TreeAndListTest : public MainWindowTest {};

TEST_F(TreeAndListTest, TreeHasTheFoldersAndTheDomainsWithTheirKeys) {
  Open();
  auto& explorer = Explorer();
  struct Expected {
    std::vector<wxString> path;
    wxString text;
  };
  const auto alpha = DomainKey("Alpha"), beta = DomainKey("Beta");
  for (const auto& [path, text] :
       std::vector<Expected>{{{"59300"}, GetResource().GetString(59300)},
                             {{"59300", "59301"}, GetResource().GetString(59301)},
                             {{"59300", "59302"}, GetResource().GetString(59302)},
                             {{"59300", "59303"}, GetResource().GetString(59303)},
                             {{"59300", "59301", alpha}, "Alpha"},
                             {{"59300", "59301", beta, "59304"}, GetResource().GetString(59304)},
                             {{"59300", "59301", beta, "59305"}, GetResource().GetString(59305)}})
    EXPECT_EQ(explorer.TreeNodeText(Node(path)), text);
  EXPECT_EQ(explorer.TreeNodeCount(), 10);
  EXPECT_NE(explorer.TreeNodeData(Node({"59300", "59301", alpha})), 0);
  EXPECT_NE(explorer.TreeNodeData(Node({"59300", "59301", alpha})),
            explorer.TreeNodeData(Node({"59300", "59301", beta})));
}

TEST_F(TreeAndListTest, EachNodeShowsItsColumnsAndRows) {
  Open();
  const auto alpha = DomainKey("Alpha"), beta = DomainKey("Beta");
  struct Expected {
    std::vector<wxString> path;
    std::vector<int> captions, widths;
    std::vector<wxString> rows;
  };
  const auto text = [](int number) { return GetResource().GetString(number); };
  const std::vector<Expected> table = {
      {{"59300"}, {59306}, {450}, {text(59301), text(59302), text(59303)}},
      {{"59300", "59301"},
       {59306, 59308, 59309},
       {150, 150, 150},
       {"Alpha|about Alpha|" + text(61105), "Beta|about Beta|" + text(61106)}},
      {{"59300", "59301", alpha}, {59306}, {450}, {text(59304), text(59305)}},
      {{"59300", "59301", alpha, "59305"},
       {59306, 59307, 59308},
       {150, 150, 300},
       {"back\\slash|Full back\\slash|d"}},
      {{"59300", "59301", beta, "59305"}, {59306, 59307, 59308}, {150, 150, 300}, {}},
  };
  for (const auto& expected : table) {
    Select(expected.path);
    const auto& columns = Explorer().Columns();
    ASSERT_EQ(columns.size(), expected.captions.size() + 1);
    for (std::size_t i = 0; i < expected.captions.size(); ++i) {
      EXPECT_EQ(columns[i].caption, text(expected.captions[i]));
      EXPECT_EQ(columns[i].width, expected.widths[i]);
    }
    EXPECT_EQ(columns.back(), (ExplorerColumn{"", 20}));
    EXPECT_EQ(Rows(), expected.rows);
  }
}

TEST_F(TreeAndListTest, GroupsAreThoseOfTheDomain) {
  Open();
  Select({"59300", "59301", DomainKey("Beta"), "59304"});
  const auto own = Explorer().ListCount();
  Select({"59300", "59301", DomainKey("Alpha"), "59304"});
  EXPECT_EQ(Explorer().ListCount(), own + 1);
  EXPECT_THAT(Rows(), testing::Contains(wxString("Readers|")));
}

TEST_F(TreeAndListTest, HostileNamesAreShownWhole) {
  Open();
  Select({"59300", "59303"});
  EXPECT_EQ(Explorer().Columns()[2].width, 300);
  const auto rows = Rows();
  for (const char* name : {"back\\slash", "\"quoted\" & 'more'", "عمر", "smile \U0001F600"}) {
    const wxString shown = wxString::FromUTF8(name);
    EXPECT_THAT(rows, testing::Contains(shown + "|Full " + shown + "|d"));
  }
}

TEST_F(TreeAndListTest, StatusCountsFollowFilterAndSelection) {
  Open();
  Select({"59300", "59303"});
  EXPECT_EQ(Status(0), GetResource().GetString(59662) + " admin");
  EXPECT_EQ(Status(1), "Entries: 6");
  Explorer().SetFilter("plain");
  WaitFor([&] { return Status(1) == "1 of 6"; }, "the number of rows that pass the filter");
  Explorer().SelectAllListRows();
  WaitFor([&] { return Status(2) == "Selected: 1"; }, "the number of selected rows");
}

TEST_F(TreeAndListTest, RefreshShowsWhatIsNewAndKeepsSelection) {
  Open();
  Select({"59300", "59303"});
  const auto key = Explorer().ListRow(2).key;
  Explorer().SelectListRow(2);
  const auto domain = Server().KDomains()->Add();
  domain->SetName("Aardvark");
  domain->Update();
  form_->RefreshAll();
  Settle();
  EXPECT_EQ(Explorer().TreeNodeKey(form_->GetTreeNodeIndex()), "59303");
  ASSERT_EQ(Explorer().SelectedListRows().size(), 1u);
  EXPECT_EQ(Explorer().SelectedListRows()[0].key, key);
  EXPECT_GE(Node({"59300", "59301", DomainKey("Aardvark"), "59305"}), 0);
}

TEST_F(TreeAndListTest, HandOverLooksAtEveryNodeAndHarmlesslyPastTheLast) {
  Open();
  auto& explorer = Explorer();
  const int count = explorer.TreeNodeCount();
  // The place past the last node has no text, so nothing is found there, not even by a blank one.
  ModalDriver noError;
  for (const char* sought : {"no such node", " "}) {
    SavedCommandLine() = sought;
    form_->HandOver();
  }
  for (const int index : {0, count - 1}) {
    explorer.SelectTreeNode(Node({"59300", "59302"}));
    explorer.SetTreeNodeText(index, wxString::Format("Place %d", index));
    SavedCommandLine() = wxString::Format("place %d", index);
    form_->HandOver();
    WaitFor([&] { return form_->GetTreeNodeIndex() == index; }, "the selection of the node");
  }
}

TEST_F(TreeAndListTest, HandOverSelectsTheNodeOfThatTextInAnyCase) {
  Open();
  wxString caption;
  GetApplicationServices().activeMindloft = [&](const wxString& text, const wxString&) { caption = text; };
  SavedCommandLine() = "no such node";
  const int before = form_->GetTreeNodeIndex();
  form_->HandOver();
  Settle();
  EXPECT_EQ(form_->GetTreeNodeIndex(), before);
  EXPECT_EQ(caption, form_->GetTitle());

  GetRegistry().SetString(platform::RegistryRoot::LocalMachine,
                          "SOFTWARE\\Ordwell\\Mindloft\\Resource\\Forms\\frmSysAdmin", "", "Other caption");
  SavedCommandLine() = "bETA";
  form_->HandOver();
  const int beta = Node({"59300", "59301", DomainKey("Beta")});
  WaitFor([&] { return form_->GetTreeNodeIndex() == beta; }, "the selection of the node");
  EXPECT_TRUE(Explorer().IsTreeNodeExpanded(beta));
  EXPECT_EQ(caption, "Other caption");
}

}  // namespace mindloft::test
