#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <wx/display.h>
#include <wx/listctrl.h>
#include <wx/menu.h>
#include <wx/treectrl.h>
#include <wx/uiaction.h>

#include "mainwindow/CommandSet.h"
#include "mainwindow/MainStatusBar.h"
#include "mainwindow/MainToolBar.h"
#include "mainwindow/ObjectKindRegistry.h"
#include "tests/mainwindow/MainWindowTest.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {

using testing::ElementsAreArray;

/// What only the real keyboard and mouse reach: shortcuts of menus, and context menus.
class RealInputTest : public MainWindowTest {
 protected:
  void OpenInFront(const std::string& user = "admin") {
    Open(user);
    form_->Raise();
    Explorer().FocusList();
    WaitFor([this] { return form_->IsActive(); }, "the window to be in front");
  }

  void PointAt(wxPoint place) {
    WaitFor(
        [&] {
          wxUIActionSimulator().MouseMove(place);
          Settle();
          return wxGetMousePosition() == place;
        },
        "the pointer");
  }

  /// The items of the menu that a right click there opens: the captions' names, "-" for a separator, "!"
  /// before one that is disabled. The menu is closed again.
  std::vector<std::string> MenuAt(wxPoint place) {
    std::vector<std::string> items;
    bool opened = false, closed = false;
    const auto onOpen = [&](wxMenuEvent& event) {
      event.Skip();
      if (!event.IsPopup() || !event.GetMenu() || opened) return;
      opened = true;
      for (const auto* item : event.GetMenu()->GetMenuItems()) items.push_back(NameOf(*item));
      form_->CallAfter([] { wxUIActionSimulator().Char(WXK_ESCAPE); });
    };
    const auto onClose = [&](wxMenuEvent& event) {
      event.Skip();
      closed = closed || event.IsPopup();
    };
    form_->Bind(wxEVT_MENU_OPEN, onOpen);
    form_->Bind(wxEVT_MENU_CLOSE, onClose);
    PointAt(place);
    wxUIActionSimulator().MouseClick(wxMOUSE_BTN_RIGHT);
    WaitFor([&] { return opened && closed; }, "the menu");
    form_->Unbind(wxEVT_MENU_OPEN, onOpen);
    form_->Unbind(wxEVT_MENU_CLOSE, onClose);
    Settle();
    return items;
  }

  std::vector<std::string> TreeMenu(const std::vector<wxString>& path) {
    auto* tree = dynamic_cast<wxTreeCtrl*>(wxWindow::FindWindowByName("tree", form_));
    // The row's place is asked of the control; then another node is selected, so that the click selects it.
    Select(path);
    wxRect rect;
    EXPECT_TRUE(tree->GetBoundingRect(tree->GetSelection(), rect, true));
    Explorer().SelectTreeNode(path.size() == 1 ? Node({"59300", "59302"}) : 0);
    Settle();
    const auto items = MenuAt(tree->ClientToScreen(rect.GetTopLeft() + wxPoint(4, rect.height / 2)));
    EXPECT_EQ(form_->GetTreeNodeIndex(), Node(path)) << "the click selects the node";
    return items;
  }

  std::vector<std::string> ListMenu(long row) {
    auto* list = dynamic_cast<wxListCtrl*>(wxWindow::FindWindowByName("list", form_));
    wxRect rect;
    EXPECT_TRUE(list->GetItemRect(row, rect));
    return MenuAt(list->ClientToScreen(rect.GetTopLeft() + wxPoint(20, rect.height / 2)));
  }

  /// Every command of the kinds does nothing, but is there.
  void RegisterEditors() {
    for (const auto& kind : form_->Kinds().All()) {
      auto* editable = form_->Kinds().Find(kind.key);
      for (auto* command : {&editable->create, &editable->remove, &editable->edit})
        if (!command->name.empty()) command->action = [](const KindScope&, const std::vector<wxString>&) {};
    }
  }

 private:
  std::string NameOf(const wxMenuItem& item) {
    if (item.IsSeparator()) return "-";
    const auto* command = form_->Commands().FindById(item.GetId());
    const std::string name = command ? command->name.ToStdString() : "?";
    return (item.IsEnabled() ? "" : "!") + name;
  }
};

TEST_F(RealInputTest, F11FillsTheScreenAndGivesItBack) {
  OpenInFront();
  const wxSize before = form_->GetSize();
  const wxSize screen = wxDisplay(form_).GetGeometry().GetSize();
  wxUIActionSimulator keyboard;
  keyboard.Char(WXK_F11);
  WaitFor([&] { return form_->IsFullScreen() && form_->GetSize() == screen; }, "the full screen");
  EXPECT_TRUE(form_->GetMenuBar()->IsShown());
  EXPECT_TRUE(form_->Tools().IsShown());
  EXPECT_TRUE(form_->Status().IsShown());
  form_->UpdateCommands();
  EXPECT_TRUE(form_->GetMenuBar()->IsChecked(CommandSet::Id("mnuViewFullScreen")));
  keyboard.Char(WXK_F11);
  WaitFor([&] { return !form_->IsFullScreen() && form_->GetSize() == before; }, "the window as it was");

  // Closed in full screen, the window comes back as it was before.
  keyboard.Char(WXK_F11);
  WaitFor([&] { return form_->IsFullScreen() && form_->GetSize() == screen; }, "the full screen again");
  ASSERT_TRUE(CloseWindow());
  Open();
  EXPECT_FALSE(form_->IsFullScreen());
  WaitFor([&] { return form_->GetSize() == before; }, "the size from before full screen");
}

TEST_F(RealInputTest, TheTreesMenuOffersWhatCanBeDoneWithTheNode) {
  struct Case {
    std::vector<wxString> path;
    std::vector<std::string> all, mayNothing;
  };
  Open();
  const auto alpha = DomainKey("Alpha");
  ASSERT_TRUE(CloseWindow());
  const std::vector<wxString> folder = {"59300", "59301"};
  const std::vector<Case> table = {
      {{"59300"}, {"mnuViewRefresh"}, {"mnuViewRefresh"}},
      {folder, {"mnuDomainaddNew", "-", "mnuViewRefresh"}, {"!mnuDomainaddNew", "-", "mnuViewRefresh"}},
      {{"59300", "59302"}, {"mnuViewRefresh"}, {"mnuViewRefresh"}},
      {{"59300", "59303"},
       {"mnuUseraddNew", "-", "mnuViewRefresh"},
       {"!mnuUseraddNew", "-", "mnuViewRefresh"}},
      {{"59300", "59301", alpha},
       {"mnuDomainDelete", "mnuDomainProperties", "-", "mnuViewRefresh"},
       {"!mnuDomainDelete", "mnuDomainProperties", "-", "mnuViewRefresh"}},
      {{"59300", "59301", alpha, "59304"},
       {"mnuGroupaddNew", "-", "mnuViewRefresh"},
       {"!mnuGroupaddNew", "-", "mnuViewRefresh"}},
      {{"59300", "59301", alpha, "59305"},
       {"mnuDUseraddNew", "-", "mnuViewRefresh"},
       {"!mnuDUseraddNew", "-", "mnuViewRefresh"}},
  };
  for (const char* user : {"admin", "plain"}) {
    OpenInFront(user);
    for (const auto& [path, all, mayNothing] : table)
      EXPECT_THAT(TreeMenu(path), ElementsAreArray(user == std::string("admin") ? all : mayNothing))
          << path.back();
    ASSERT_TRUE(CloseWindow());
  }
}

TEST_F(RealInputTest, TheListsMenuOffersWhatCanBeDoneWithItsRows) {
  struct Case {
    std::vector<wxString> path;
    std::vector<std::string> one, many;
  };
  OpenInFront();
  RegisterEditors();
  const auto alpha = DomainKey("Alpha");
  const std::vector<Case> table = {
      {{"59300"}, {"mnuEditSelectAll", "mnuViewRefresh"}, {"mnuEditSelectAll", "mnuViewRefresh"}},
      {{"59300", "59301"},
       {"mnuDomainaddNew", "mnuDomainDelete", "mnuDomainProperties", "-", "mnuEditSelectAll",
        "mnuViewRefresh"},
       {"mnuDomainaddNew", "mnuDomainDelete", "!mnuDomainProperties", "-", "mnuEditSelectAll",
        "mnuViewRefresh"}},
      {{"59300", "59302"},
       {"mnuRoleProperties", "-", "mnuEditSelectAll", "mnuViewRefresh"},
       {"!mnuRoleProperties", "-", "mnuEditSelectAll", "mnuViewRefresh"}},
      {{"59300", "59303"},
       {"mnuUseraddNew", "mnuUserDelete", "mnuUserProperties", "-", "mnuEditSelectAll", "mnuViewRefresh"},
       {"mnuUseraddNew", "mnuUserDelete", "!mnuUserProperties", "-", "mnuEditSelectAll", "mnuViewRefresh"}},
      {{"59300", "59301", alpha, "59304"},
       {"mnuGroupaddNew", "mnuGroupDelete", "mnuGroupProperties", "-", "mnuEditSelectAll", "mnuViewRefresh"},
       {"mnuGroupaddNew", "mnuGroupDelete", "!mnuGroupProperties", "-", "mnuEditSelectAll",
        "mnuViewRefresh"}},
  };
  for (const auto& [path, one, many] : table) {
    Select(path);
    EXPECT_THAT(ListMenu(0), ElementsAreArray(one)) << path.back();
    ASSERT_GT(Explorer().ListCount(), 1) << path.back();
    Explorer().SelectAllListRows();
    Settle();
    // Elsewhere than before: two clicks on one place might be a double click.
    EXPECT_THAT(ListMenu(1), ElementsAreArray(many)) << path.back();
  }
  // A domain's one user.
  Select({"59300", "59301", alpha, "59305"});
  EXPECT_THAT(ListMenu(0), ElementsAreArray({"mnuDUseraddNew", "mnuDUserDelete", "mnuDUserProperties", "-",
                                             "mnuEditSelectAll", "mnuViewRefresh"}));
  // A domain's own list is of folders: the commands are the domain's while none of them is selected.
  Select({"59300", "59301", alpha});
  EXPECT_THAT(ListMenu(1), ElementsAreArray({"mnuEditSelectAll", "mnuViewRefresh"}));
}

}  // namespace mindloft::test
