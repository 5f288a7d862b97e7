#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <wx/listctrl.h>
#include <wx/menuitem.h>

#include <algorithm>

#include "backend/directory/DirectoryLoader.h"
#include "backend/directory/sqlite/Database.h"
#include "backend/tessaline/Text.h"
#include "core/Refresh.h"
#include "editors/LongChange.h"
#include "mainwindow/DirectoryTree.h"
#include "mainwindow/LanguageMenu.h"
#include "mainwindow/ObjectKindRegistry.h"
#include "platform/Clock.h"
#include "tests/mainwindow/MainWindowTest.h"
#include "tests/support/gui/ModalDriver.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {

using testing::ElementsAre;

/// What the window shows is in the order of the language, and stays in its place when that changes.
class LanguageOrderTest : public MainWindowTest {
 protected:
  static constexpr int kEnglish = 1033, kChinese = 2052, kArabic = 1025, kTurkish = 1055;
  /// Enough for several reports of the first sorting.
  static constexpr int kMany = 600;

  void SetUp() override {
    MainWindowTest::SetUp();
    DirectoryLoader loader(file_);
    const auto add = [&](const std::string& name) {
      UserRecord user;
      user.name = name;
      loader.AddUser(user);
    };
    for (int number = 1000; number < 1000 + kMany; ++number) add("user " + std::to_string(number));
    for (const char* name : {"李", "Isparta"}) add(name);
    DomainRecord domain;
    domain.name = "王府";
    loader.AddDomain(domain);
    loader.Finish();
  }
  void OpenUsers() {
    Open();
    Select({"59300", "59303"});
  }
  static void SwitchTo(int code) {
    LanguageMenu::Switch(code);
    Settle();
  }
  std::vector<std::string> Names() {
    std::vector<std::string> names;
    for (const auto& row : Rows()) names.push_back(ToUtf8(row.BeforeFirst('|')));
    return names;
  }
  std::int64_t RowOf(const std::string& name) {
    const auto names = Names();
    return std::find(names.begin(), names.end(), name) - names.begin();
  }
  wxString FocusedKey() { return Explorer().ListRow(Explorer().FocusedListRow()).key; }
  std::vector<wxString> SelectedKeys() {
    auto keys = Explorer().SelectedListKeys();
    std::sort(keys.begin(), keys.end());
    return keys;
  }
  wxListCtrl& List() { return User(*form_).Find<wxListCtrl>("list"); }
  std::vector<std::string> Domains() {
    std::vector<std::string> names;
    for (int index = 0; index < Explorer().TreeNodeCount(); ++index)
      if (form_->Tree().IsDomain(index)) names.push_back(ToUtf8(Explorer().TreeNodeText(index)));
    return names;
  }
  /// The window's texts are of the program's language, whatever became of the order.
  void ExpectTexts() {
    const auto caption = GetResource().CaptionOf("frmSysAdmin", "mnuViewRefresh");
    EXPECT_EQ(MenuText("mnuViewRefresh"), wxMenuItem::GetLabelText(caption.value().text));
    EXPECT_EQ(Explorer().TreeNodeText(Node({"59300", "59303"})), GetResource().GetString(59303));
  }
  void Sql(const char* statements) { sqlite::Database(file_, SQLITE_OPEN_READWRITE).Execute(statements); }
};

TEST_F(LanguageOrderTest, ListAndTreeFollowOnceAndStayAtTheirPlace) {
  OpenUsers();
  int listed = 0;
  auto* kind = form_->Kinds().Find("59303");
  kind->rows = [&listed, rows = kind->rows](const KindScope& scope) {
    ++listed;
    return rows(scope);
  };
  Explorer().SelectListRows({RowOf("user 1300"), RowOf("user 1303"), RowOf("user 1500"), RowOf("李")});
  Settle();
  const auto selected = SelectedKeys();
  const wxString focused = FocusedKey();
  const auto below = Explorer().FocusedListRow() - List().GetTopItem();
  ASSERT_GT(List().GetTopItem(), 0);
  for (const int code : {kChinese, kArabic, kTurkish, kChinese, kEnglish}) {
    SCOPED_TRACE(code);
    listed = 0;
    SwitchTo(code);
    EXPECT_EQ(listed, 1) << "shown once";
    EXPECT_EQ(RowOf("李") < RowOf("admin"), code == kChinese);
    EXPECT_EQ(RowOf("عمر") < RowOf("admin"), code == kArabic);
    EXPECT_EQ(SelectedKeys(), selected);
    EXPECT_EQ(FocusedKey(), focused);
    EXPECT_EQ(Explorer().FocusedListRow() - List().GetTopItem(), below);
    EXPECT_EQ(List().GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_FOCUSED), Explorer().FocusedListRow());
    if (code == kChinese)
      EXPECT_THAT(Domains(), ElementsAre("王府", "Alpha", "Beta"));
    else
      EXPECT_THAT(Domains(), ElementsAre("Alpha", "Beta", "王府"));
    EXPECT_EQ(form_->GetTreeNodeIndex(), Node({"59300", "59303"}));
  }
}

TEST_F(LanguageOrderTest, AListThatIsScrolledAwayFromTheFocusStaysThere) {
  OpenUsers();
  Explorer().SelectListRow(RowOf("user 1550"));
  Explorer().SelectListRow(0);
  Settle();
  List().EnsureVisible(static_cast<long>(RowOf("user 1400")));
  Settle();
  const auto top = List().GetTopItem();
  ASSERT_GT(top, 0);
  const wxString key = Explorer().ListRow(top).key;
  for (const int code : {kChinese, kArabic, kEnglish}) {
    SwitchTo(code);
    EXPECT_EQ(Explorer().ListRow(List().GetTopItem()).key, key) << code;
    EXPECT_EQ(Explorer().FocusedListRow(), 0) << code << ": a sign, before all letters";
  }
  EXPECT_EQ(List().GetTopItem(), top);
}

TEST_F(LanguageOrderTest, AFilterFindsByTheRulesOfTheLanguage) {
  OpenUsers();
  Explorer().SetFilter("isp");
  EXPECT_THAT(Names(), ElementsAre("Isparta"));
  SwitchTo(kTurkish);
  EXPECT_EQ(Explorer().Filter(), "isp");
  EXPECT_THAT(Names(), ElementsAre()) << "the name begins with the other letter";
  Explorer().SetFilter(ToWx("ısp"));
  EXPECT_THAT(Names(), ElementsAre("Isparta"));
  SwitchTo(kEnglish);
  EXPECT_THAT(Names(), ElementsAre());
}

TEST_F(LanguageOrderTest, TheFirstSortingCanBeCancelledAndDoneLater) {
  OpenUsers();
  Explorer().SelectListRow(RowOf("plain"));
  const auto names = Names();
  const auto focused = FocusedKey();
  for (const int code : {kChinese, kArabic}) {
    SCOPED_TRACE(code);
    {
      platform::FakeClock clock(1'000'000);
      clock.AdvanceAtReading(kPatience.count());
      bool seen = false;
      // It waits for the first moment in which the sorting lets the windows live.
      form_->CallAfter([&] {
        auto* progress = wxWindow::FindWindowByName("frmDeleteKDomainProgress");
        ASSERT_TRUE(progress && progress->IsShown());
        seen = true;
        EXPECT_FALSE(form_->IsEnabled());
        EXPECT_EQ(User(*progress).Read("lblWhat"), GetResource().GetString(61150));
        User(*progress).Click("cmdCancel");
      });
      ASSERT_TRUE(GetResource().SwitchLanguage(code));
      GetRefresh()->NotifyLanguage();
      EXPECT_TRUE(seen);
    }
    Settle();
    EXPECT_TRUE(form_->IsEnabled());
    ExpectTexts();
    EXPECT_EQ(Names(), names);
    EXPECT_EQ(FocusedKey(), focused);
    EXPECT_EQ(GetConnection()->Language(), 0);
  }
  GetRefresh()->NotifyLanguage();
  EXPECT_EQ(GetConnection()->Language(), kArabic);
  EXPECT_LT(RowOf("عمر"), RowOf("admin"));
  EXPECT_EQ(FocusedKey(), focused);
}

TEST_F(LanguageOrderTest, AFailureIsToldAndKeepsTheOrder) {
  OpenUsers();
  const auto names = Names();
  Sql("CREATE TRIGGER full BEFORE INSERT ON user_rules BEGIN SELECT RAISE(ABORT, 'full'); END");
  ModalDriver modal;
  modal.ExpectMessage(61151, wxID_OK);
  SwitchTo(kChinese);
  modal.Verify();
  EXPECT_TRUE(modal.LastMessage().Contains(GetResource().GetString(61495))) << modal.LastMessage();
  ExpectTexts();
  EXPECT_EQ(Names(), names);
  EXPECT_NE(LoggedText().find("SessionLanguage"), std::string::npos);
  // What is sorted already does not depend on it.
  SwitchTo(kEnglish);
  EXPECT_EQ(Names(), names);
  Sql("DROP TRIGGER full");
  SwitchTo(kChinese);
  EXPECT_LT(RowOf("李"), RowOf("admin"));
}

}  // namespace mindloft::test
