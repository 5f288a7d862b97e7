#include <gmock/gmock.h>

#include "backend/tessaline/Text.h"
#include "config/frmConfiguration.h"
#include "config/frmURL.h"
#include "controls/explorer/ctExplorer.h"
#include "tests/config/ConfigFixture.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class UrlListTest : public ConfigFixture {
 protected:
  void Open(ModalDriver& modal, ModalDriver::Script script,
            frmURL::Purpose purpose = frmURL::Purpose::ChooseUrl) {
    modal.ExpectForm("frmURL", std::move(script));
    frmURL(nullptr, purpose).ShowModal();
    modal.Verify();
  }
  void Open(ModalDriver::Script script, frmURL::Purpose purpose = frmURL::Purpose::ChooseUrl) {
    ModalDriver modal;
    Open(modal, std::move(script), purpose);
  }
  static ctExplorer& List(const User& user) { return user.Find<ctExplorer>("ctURL"); }
  static std::vector<std::string> Listed(const User& user) {
    std::vector<std::string> rows;
    for (std::int64_t row = 0; row < List(user).ListCount(); ++row) {
      rows.push_back(ToUtf8(List(user).ListRow(row).fields));
    }
    return rows;
  }
  static void Add(User& user, const wxString& url) {
    user.Clear("txtUrl");
    user.Type("txtUrl", url);
    user.Click("cmdAdd");
  }
};

TEST_F(UrlListTest, ListsInTheRegistrysOrderWithTheFirstRowSelectedAndNothingInTheBox) {
  Open([](User& user) {
    EXPECT_EQ(List(user).ListCount(), 0);
    user.Click("CmdDelete");
    user.Press(WXK_ESCAPE);
  });
  AddUrl("b", "http://b/");
  AddUrl("a", "http://a/");
  registry_->Set(platform::RegistryRoot::CurrentUser, kUrlKey, "n", std::uint32_t{1});
  Set(7, "http://before/");
  Open([](User& user) {
    EXPECT_THAT(Listed(user), ElementsAre("http://b/", "http://a/"));
    EXPECT_EQ(List(user).FocusedListRow(), 0);
    EXPECT_EQ(List(user).SelectedListCount(), 1);
    EXPECT_EQ(user.Read("txtUrl"), "");
    WaitFor([&] { return user.Find("txtUrl").IsDescendant(wxWindow::FindFocus()); }, "the caret in the box");
    user.Click("cmdclose");
  });
  EXPECT_EQ(Setting(7), "http://before/") << "nobody has chosen anything";
}

TEST_F(UrlListTest, AddsTrimmedAndWarnsOfADuplicateWhichIsStoredAllTheSame) {
  AddUrl("a", "http://a/");
  ModalDriver modal;
  Open(modal, [&](User& user) {
    Add(user, "   ");
    EXPECT_EQ(List(user).ListCount(), 1);
    Add(user, " HTTP://A/ ");
    modal.ExpectMessage(53657, wxID_OK);
    Add(user, " http://a/ ");
    EXPECT_THAT(Listed(user), ElementsAre("http://a/", "HTTP://A/", "http://a/"));
    EXPECT_EQ(List(user).FocusedListRow(), 2);
    EXPECT_EQ(user.Read("txtUrl"), "");
    user.Type("txtUrl", "http://entered/");
    user.Press(WXK_RETURN, 0, "txtUrl");
    EXPECT_EQ(List(user).ListCount(), 4);
    user.Click("cmdclose");
  });
  EXPECT_THAT(Urls(), ElementsAre("http://a/", "HTTP://A/", "http://a/", "http://entered/"));
  EXPECT_EQ(Setting(7), "http://entered/") << "what was entered last is chosen";
}

TEST_F(UrlListTest, ASelectedRowIsChangedInTheBox) {
  for (const char* key : {"a", "b", "c"}) AddUrl(key, std::string("http://") + key + "/");
  ModalDriver modal;
  Open(modal, [&](User& user) {
    const wxString add = user.Read("cmdAdd");
    List(user).SelectListRow(1);
    EXPECT_EQ(user.Read("txtUrl"), "http://b/");
    EXPECT_NE(user.Read("cmdAdd"), add);
    Add(user, "http://changed/");
    EXPECT_EQ(user.Read("cmdAdd"), add);
    EXPECT_THAT(Listed(user), ElementsAre("http://a/", "http://changed/", "http://c/"));

    List(user).SelectListRow(2);
    user.Click("CmdNew");
    EXPECT_EQ(user.Read("txtUrl"), "");
    Add(user, "http://new/");

    // The entry's own text counts as a duplicate too.
    List(user).SelectListRow(0);
    modal.ExpectMessage(53657, wxID_OK);
    user.Click("cmdAdd");
    List(user).SelectListRow(2);
    user.Click("cmdclose");
  });
  EXPECT_THAT(Urls(), ElementsAre("http://a/", "http://changed/", "http://c/", "http://new/"));
  EXPECT_EQ(Setting(7), "http://c/");
}

TEST_F(UrlListTest, DeletingSelectsTheRowAtThePlaceOrTheLastOne) {
  for (const char* key : {"a", "b", "c", "d"}) AddUrl(key, std::string("http://") + key + "/");
  Set(7, "http://b/");
  Open([&](User& user) {
    List(user).SelectListRow(1);
    user.Click("CmdDelete");
    EXPECT_THAT(Urls(), ElementsAre("http://a/", "http://c/", "http://d/")) << "written at once";
    EXPECT_EQ(List(user).FocusedListRow(), 1);
    EXPECT_EQ(List(user).SelectedListCount(), 1);
    EXPECT_EQ(user.Read("txtUrl"), "") << "the deleted entry cannot be changed";
    Add(user, "http://e/");
    EXPECT_EQ(Listed(user).size(), 4u) << "it is a new one";

    List(user).SelectListRow(3);
    user.Click("CmdDelete");
    EXPECT_EQ(List(user).FocusedListRow(), 2);
    List(user).FocusList();
    while (List(user).ListCount() > 0) user.Press(WXK_DELETE);
    EXPECT_EQ(List(user).SelectedListCount(), 0);
    user.Press(WXK_ESCAPE);
  });
  EXPECT_THAT(Urls(), IsEmpty());
  EXPECT_EQ(Setting(7), "http://b/") << "a deleted URL is nobody's choice";
}

TEST_F(UrlListTest, HostileAndLongUrlsAndThousandsOfThem) {
  const std::string longUrl = "http://" + std::string(10'000, 'x') + "/end";
  const std::string hostile = "http://\"'\\\x01\n\u202e\U0001F600/";
  AddUrl("long", longUrl);
  AddUrl("hostile", hostile);
  for (int i = 0; i < 3000; ++i) AddUrl("u" + std::to_string(i), "http://host" + std::to_string(i) + "/");
  Open([&](User& user) {
    auto& list = List(user);
    EXPECT_EQ(list.ListCount(), 3002);
    EXPECT_LE(list.ListRow(0).fields.length(), 260u);
    EXPECT_EQ(list.ListRow(1).fields, ToWx("http://\"'\\\u2401\u240a\ufffd\U0001F600/"));
    list.SetFilter("HOST299");
    EXPECT_EQ(list.ListCount(), 11);
    list.SelectListRow(0);
    Add(user, "http://host2999/changed");
    list.SetFilter("");
    list.SelectListRow(0);
    EXPECT_EQ(user.Read("txtUrl"), ToWx(longUrl)) << "the whole of it";
    user.Click("cmdclose");
  });
  EXPECT_EQ(Setting(7), ToWx(longUrl));
  EXPECT_EQ(Urls()[0], longUrl);
  EXPECT_EQ(Urls()[1], hostile);
  EXPECT_EQ(Urls()[2 + 299], "http://host2999/changed");
}

TEST_F(UrlListTest, KeepingTheListChoosesNothing) {
  AddUrl("a", "http://a/");
  Set(7, "http://mine/");
  Open(
      [](User& user) {
        Add(user, "http://b/");
        user.Click("cmdclose");
      },
      frmURL::Purpose::KeepList);
  EXPECT_EQ(Setting(7), "http://mine/");
}

TEST_F(UrlListTest, TheConnectionSettingsTakeTheChosenUrlAndTheListOver) {
  Set(0, "2");
  Set(7, "http://first/");
  AddUrl("a", "http://a/");
  ModalDriver modal;
  modal.ExpectForm("frmConfiguration", [&](User& user) {
    modal.ExpectForm("frmURL", [](User& urls) {
      Add(urls, "http://chosen/");
      urls.Click("cmdclose");
    });
    user.Click("cmdAddress");
    EXPECT_EQ(user.Read("cmbAddress"), "http://chosen/");
    user.Choose("cmbAddress", "http://a/");
    EXPECT_TRUE(user.IsEnabled("cmdApply"));
    user.Click("cmdOk");
  });
  frmConfiguration(nullptr).ShowModal();
  EXPECT_EQ(Setting(7), "http://a/");
  EXPECT_THAT(Urls(), ElementsAre("http://a/", "http://chosen/"));
}

}  // namespace
}  // namespace mindloft::test
