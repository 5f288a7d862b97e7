#include <gtest/gtest.h>
#include <wx/dialog.h>
#include <wx/mstream.h>
#include <wx/splitter.h>
#include <wx/xml/xml.h>
#include <wx/xrc/xmlres.h>

#include <memory>

#include "controls/RegisterControls.h"
#include "controls/explorer/ExplorerLists.h"
#include "tests/controls/explorer/ExplorerFixture.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {

class ExplorerFormTest : public ExplorerFixture {};

TEST_F(ExplorerFormTest, FormsPlaceExplorersWithAndWithoutTree) {
  RegisterControls();
  RegisterControls();
  const char form[] =
      "<resource xmlns='http://www.wxwidgets.org/wxxrc' version='2.5.3.0'><object class='wxDialog' "
      "name='frmTry'>"
      "<object class='wxBoxSizer'>"
      "<object class='sizeritem'><object class='ctExplorer' name='ctMainForm'/></object>"
      "<object class='sizeritem'><object class='ctExplorer' name='ctUser'><tree>0</tree></object></object>"
      "</object></object></resource>";
  wxMemoryInputStream stream(form, sizeof form - 1);
  auto document = std::make_unique<wxXmlDocument>(stream);
  ASSERT_TRUE(wxXmlResource::Get()->LoadDocument(document.release(), "try.xrc"));
  wxDialog dialog;
  ASSERT_TRUE(wxXmlResource::Get()->LoadDialog(&dialog, nullptr, "frmTry"));
  User user(dialog);
  auto& main = user.Find<ctExplorer>("ctMainForm");
  EXPECT_EQ(main.GetId(), wxXmlResource::GetXRCID("ctMainForm"));
  EXPECT_EQ(main.AddTreeNode(-1, "root", "59300", 0), 0);
  auto& list = user.Find<ctExplorer>("ctUser");
  EXPECT_EQ(list.AddTreeNode(-1, "root", "59300", 0), -1);
  AddColumn(list, "Name", 100);
  list.SetRows(rows_);
  EXPECT_EQ(list.ListCount(), kRows);
  wxXmlResource::Get()->Unload("try.xrc");
}

TEST_F(ExplorerFormTest, OtherColumnsReplaceTheFormer) {
  const auto headings = [this] {
    std::vector<std::pair<wxString, int>> result;
    for (int column = 0; column < List().GetColumnCount(); ++column) {
      wxListItem item;
      item.SetMask(wxLIST_MASK_TEXT | wxLIST_MASK_WIDTH);
      List().GetColumn(column, item);
      result.emplace_back(item.GetText(), List().ToDIP(List().GetColumnWidth(column)));
    }
    return result;
  };
  using Headings = std::vector<std::pair<wxString, int>>;
  EXPECT_EQ(headings(), (Headings{{"Name", 150}, {"Second", 150}, {"", 20}}));
  explorer_->ClearList();
  AddColumn(*explorer_, "Other", 450);
  AddColumn(*explorer_, "", 20);
  SetColumnWidth(*explorer_, 0, 300);
  SetColumnWidth(*explorer_, 7, 300);
  explorer_->SetRows(rows_);
  EXPECT_EQ(headings(), (Headings{{"Other", 300}, {"", 20}}));
  explorer_->ClearList();
  Settle();
  EXPECT_TRUE(headings().empty());
  EXPECT_EQ(List().GetItemCount(), 0);
}

TEST_F(ExplorerFormTest, CellsAreOneLineAndCutVisibly) {
  struct Case {
    wxString fields;
    int column;
    wxString shown;
  };
  class OneRow : public FakeRows {
   public:
    using FakeRows::FakeRows;
    std::vector<ExplorerRow> Page(std::int64_t, std::int64_t) override { return {{fields, "k", -1}}; }
    wxString fields;
  };
  const wxString longText(300, 'x');
  for (const Case& each : {Case{"a\\b\x01"
                                "c",
                                0, "a\\b"},
                           Case{"a\x01"
                                "c",
                                1, "c"},
                           Case{"a", 1, ""}, Case{"two\nlines", 0, "two lines"},
                           Case{longText, 0, longText.Left(250) + wxUniChar(0x2026)}}) {
    auto row = std::make_shared<OneRow>(1);
    row->fields = each.fields;
    explorer_->SetRows(row);
    EXPECT_EQ(List().GetItemText(0, each.column), each.shown);
  }
}

TEST_F(ExplorerFormTest, RightToLeftPutsTheTreeOnTheRight) {
  wxFrame frame;
  frame.Create(nullptr, wxID_ANY, "right to left", wxDefaultPosition, wxSize(800, 400));
  frame.SetLayoutDirection(wxLayout_RightToLeft);
  auto* explorer = new ctExplorer(&frame, "ctMainForm");
  frame.Show();
  User user(frame);
  auto& tree = user.Find("tree");
  auto& list = user.Find("list");
  WaitFor([&] { return list.GetSize().y > 50; }, "the layout");
  explorer->SetSashPosition(300);
  Settle();
  EXPECT_EQ(explorer->SashPosition(), 300);
  EXPECT_EQ(tree.GetSize().x, 300);
  EXPECT_GT(tree.GetScreenRect().GetRight(), list.GetScreenRect().GetRight());
}

}  // namespace mindloft::test
