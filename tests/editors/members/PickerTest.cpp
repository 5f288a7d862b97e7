#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <wx/listctrl.h>
#include <wx/srchctrl.h>

#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "core/Refresh.h"
#include "editors/SessionLanguage.h"
#include "editors/members/ListedUsers.h"
#include "editors/members/MemberItems.h"
#include "editors/members/UserList.h"
#include "editors/members/frmListUser.h"
#include "editors/members/frmSelectUnit.h"
#include "tests/editors/members/MembersFixture.h"
#include "tests/support/gui/FormLooks.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

class PickerTest : public MembersFixture {
 protected:
  /// Opens the picker over the candidates for Readers and returns the names that were picked.
  std::vector<std::string> Pick(int kind, const MemberItems& items, ModalDriver::Script script) {
    std::vector<ExplorerRow> picked{{"left over", "0", 0}};
    ModalDriver modal;
    modal.ExpectForm("frmListUser", std::move(script));
    frmListUser(nullptr).OpenWindow(Group("Readers"), kind, items, picked);
    std::vector<std::string> names;
    for (const auto& row : picked) {
      names.push_back(ToUtf8(row.fields.BeforeFirst(wxUniChar(1))));
      EXPECT_EQ(row.key, IdOf(names.back()));
    }
    return names;
  }
  UserItem Item(const std::string& name, std::int32_t statu) {
    return {Server().Users()->Item(ToUtf8(IdOf(name))), statu};
  }
};

TEST_F(PickerTest, ListsWhomItsKindSays) {
  const std::vector<UserItem> items = {Item("smile \U0001F600", ToBeAdded), Item("anna", ToBeRemoved)};
  struct Case {
    int kind;
    std::vector<std::string> listed;
  };
  for (const auto& [kind, listed] :
       {Case{CallersItems, {"anna", "smile \U0001F600"}},
        Case{CallersItemsByIndex, {"smile \U0001F600", "anna"}},
        // Who is about to go can be taken back, who is about to come is not offered again.
        Case{UsersNotAccessible, {"anna", "\"quoted\" & 'more'", "Zo\u00eb", "\u0639\u0645\u0631"}}}) {
    EXPECT_THAT(Pick(kind, MemberItems(items),
                     [&](User& user) {
                       EXPECT_EQ(user.Title(), "Select users");
                       EXPECT_THAT(Listed(user), ElementsAreArray(listed)) << kind;
                       EXPECT_EQ(user.Read("lblCount"),
                                 wxString::Format("Entries: %zu, selected: 1", listed.size()));
                       user.Click("cmdOK");
                     }),
                ElementsAre(listed[0]));
  }
  std::vector<ExplorerRow> picked;
  EXPECT_THROW(frmListUser(nullptr).OpenWindow(Group("Readers"), 3, MemberItems(items), picked), Error);
}

TEST_F(PickerTest, ReturnsTheSelectionInListOrder) {
  const MemberItems none;
  EXPECT_THAT(Pick(UsersNotAccessible, none,
                   [](User& user) {
                     Select(user, {"Zo\u00eb", "\"quoted\" & 'more'", "smile \U0001F600"});
                     Explorer(user).SortBy(0, true);
                     user.Click("cmdOK");
                   }),
              ElementsAre("Zo\u00eb", "smile \U0001F600", "\"quoted\" & 'more'"));
  // What a filter hides was not taken back, but it cannot be seen, so it is not picked.
  EXPECT_THAT(Pick(UsersNotAccessible, none,
                   [](User& user) {
                     Select(user, {"Zo\u00eb", "smile \U0001F600"});
                     user.Find<wxSearchCtrl>("search").SetValue(ToWx("ZOE\u0308"));
                     EXPECT_THAT(Listed(user), ElementsAre("Zo\u00eb"));
                     user.Click("cmdOK");
                   }),
              ElementsAre("Zo\u00eb"));
  EXPECT_THAT(Pick(UsersNotAccessible, none,
                   [](User& user) {
                     user.Press('A', wxMOD_CONTROL, "list");
                     user.Click("cmdCancel");
                   }),
              IsEmpty());
  EXPECT_THAT(Pick(UsersNotAccessible, none, [](User& user) { user.Press(WXK_ESCAPE); }), IsEmpty());
  EXPECT_THAT(Pick(UsersNotAccessible, none, [](User& user) { user.DoubleClickRow("list", 2); }),
              ElementsAre("Zo\u00eb"));
}

TEST_F(PickerTest, AnEmptyListReturnsNothing) {
  EXPECT_THAT(Pick(CallersItems, MemberItems(),
                   [](User& user) {
                     EXPECT_EQ(Explorer(user).SelectedListCount(), 0);
                     user.Press(WXK_RETURN, 0, "list");
                     EXPECT_TRUE(user.IsShown("ctUser"));
                     user.Click("cmdOK");
                   }),
              IsEmpty());
}

TEST_F(PickerTest, TooManyAreRefusedAtOnce) {
  MemberItems items;
  for (std::int64_t i = 1; i <= kMostUsersAtOnce + 1; ++i) {
    const wxString key = wxString::Format("%lld", static_cast<long long>(i));
    items.Add({{"name " + key, key, 0}, ToBeAdded});
  }
  ModalDriver modal;
  std::vector<ExplorerRow> picked;
  modal.ExpectForm("frmListUser", [](User& user) {
    user.Press('A', wxMOD_CONTROL, "list");
    user.Click("cmdOK");
    EXPECT_TRUE(user.IsShown("ctUser"));
    user.Press(WXK_HOME, 0, "list");
    user.Press(WXK_END, wxMOD_SHIFT, "list");
    user.Press(WXK_UP, wxMOD_SHIFT, "list");
    user.Click("cmdOK");
  });
  modal.ExpectMessage(61650, wxID_OK);
  frmListUser(nullptr).OpenWindow(Group("Readers"), CallersItemsByIndex, items, picked);
  EXPECT_EQ(picked.size(), static_cast<std::size_t>(kMostUsersAtOnce));
  EXPECT_EQ(picked.back().key, wxString::Format("%lld", static_cast<long long>(kMostUsersAtOnce)));
}

TEST_F(PickerTest, TakesItsTextsInAnotherLanguage) {
  const MemberItems none;
  EXPECT_THAT(Pick(UsersNotAccessible, none,
                   [](User& user) {
                     Select(user, {"Zo\u00eb"});
                     ASSERT_TRUE(GetResource().SwitchLanguage(2052));
                     GetRefresh()->NotifyLanguage();
                     EXPECT_EQ(user.Title(), GetResource().GetString(59358));
                     EXPECT_EQ(Explorer(user).Columns().at(0).caption, GetResource().GetString(59306));
                     user.Click("cmdOK");
                   }),
              ElementsAre("Zo\u00eb"));
}

TEST_F(PickerTest, OrdersAndFindsByTheRulesOfTheLanguage) {
  for (const char* name : {"\u674e", "Isparta"}) {
    const auto user = Server().Users()->Add();
    user->SetName(name);
    user->Update();
  }
  std::vector<UserItem> items;
  for (const char* name : {"anna", "\u0639\u0645\u0631", "\u674e", "Isparta"})
    items.push_back(Item(name, ToBeAdded));
  const auto switchTo = [](int code) {
    ASSERT_TRUE(GetResource().SwitchLanguage(code));
    SetSessionLanguage();
    GetRefresh()->NotifyLanguage();
  };
  const auto search = [](User& user, const wxString& text) {
    user.Find<wxSearchCtrl>("search").SetValue(text);
    return Listed(user);
  };
  Pick(CallersItems, MemberItems(items), [&](User& user) {
    EXPECT_THAT(Listed(user), ElementsAre("anna", "Isparta", "\u0639\u0645\u0631", "\u674e"));
    EXPECT_THAT(search(user, "isp"), ElementsAre("Isparta"));
    switchTo(1055);
    EXPECT_THAT(Listed(user), IsEmpty()) << "it begins with the other letter";
    EXPECT_THAT(search(user, ToWx("\u0131sp")), ElementsAre("Isparta"));
    search(user, {});
    Select(user, {"Isparta"});
    switchTo(2052);
    EXPECT_THAT(Listed(user), ElementsAre("\u674e", "anna", "Isparta", "\u0639\u0645\u0631"));
    switchTo(1025);
    EXPECT_THAT(Listed(user), ElementsAre("\u0639\u0645\u0631", "anna", "Isparta", "\u674e"));
    EXPECT_EQ(Explorer(user).SelectedListKeys(), std::vector{IdOf("Isparta")});
    EXPECT_EQ(Explorer(user).FocusedListRow(), 2);
    switchTo(1033);
    user.Click("cmdCancel");
  });
}

TEST_F(PickerTest, FitInEveryLanguage) {
  const MemberItems none;
  const auto look = [](User& user) {
    const auto& form = dynamic_cast<const wxTopLevelWindow&>(user.Form());
    InEveryLanguage([&] { ExpectLooks(form, 7); });
    user.Click("cmdCancel");
  };
  Pick(UsersNotAccessible, none, look);
  ModalDriver modal;
  modal.ExpectForm("frmSelectUnit", look);
  frmSelectUnit(nullptr).Display({Server().Users()->Item(ToUtf8(IdOf("plain")))});
}

TEST_F(PickerTest, MarksWhoLacksAPrivilege) {
  const auto plain = Server().Users()->Item(ToUtf8(IdOf("plain")));
  plain->SetEnabled(false);
  plain->Update();
  const auto anna = Server().Users()->Item(ToUtf8(IdOf("anna")));
  const auto images = [](const User& user) {
    const auto& list = Explorer(user, "ctNotPrivilege");
    return std::pair(list.ListRow(0).image, list.ListRow(1).image);
  };
  ModalDriver modal;
  modal.ExpectForm("frmSelectUnit", [&](User& user) {
    EXPECT_EQ(images(user), std::pair(2, 3));
    EXPECT_TRUE(user.IsShown("lblMarked"));
    EXPECT_EQ(Explorer(user, "ctNotPrivilege").SelectedListKeys(), std::vector{IdOf("anna")});
    user.Press('A', wxMOD_CONTROL, "list");
    user.Click("cmdOK");
  });
  EXPECT_THAT(frmSelectUnit(nullptr).Display({plain, anna}), ElementsAre(IdOf("anna"), IdOf("plain")));
  modal.ExpectForm("frmSelectUnit", [&](User& user) {
    EXPECT_EQ(images(user), std::pair(3, 2));
    user.DoubleClickRow("list", 1);
  });
  frmSelectUnit named(nullptr, [](const Corvane::User& user) { return user.Name() == "anna"; });
  EXPECT_THAT(named.Display({plain, anna}), ElementsAre(IdOf("plain")));
  modal.ExpectForm("frmSelectUnit", [&](User& user) {
    user.Press('A', wxMOD_CONTROL, "list");
    user.Click("cmdCancel");
  });
  EXPECT_THAT(frmSelectUnit(nullptr).Display({plain, anna}), IsEmpty());
}

}  // namespace mindloft::test
