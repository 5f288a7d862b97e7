#include <gmock/gmock.h>
#include <wx/choice.h>
#include <wx/textctrl.h>

#include <fstream>

#include "backend/corvane/LocalDirectory.h"
#include "backend/tessaline/Text.h"
#include "backend/tessaline/login/LoginDialog.h"
#include "backend/tessaline/login/SettingsForm.h"
#include "core/Refresh.h"
#include "platform/Clock.h"
#include "platform/ui/Keyboard.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/gui/FormLooks.h"
#include "tests/support/gui/ModalDriver.h"
#include "tests/support/gui/PrivateServices.h"
#include "tests/support/gui/ShownTexts.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {
namespace {

using testing::HasSubstr;
using testing::Not;

constexpr char kPassword[] = "correct horse battery";

class LoginFormTest : public PrivateServices {
 protected:
  void SetUp() override {
    PrivateServices::SetUp();
    SetApplication(std::make_unique<Corvane::Application>(Corvane::EmbeddedDirectoryProvider(file_)));
  }
  void TearDown() override {
    SetApplication(nullptr);
    PrivateServices::TearDown();
  }

  void MakeDirectory() { Corvane::CreateLocalDirectory(file_, "Root", kPassword); }

  /// Shows the dialog to the users in turn; it has to be made again for each but the first.
  bool Login(std::vector<ModalDriver::Script> scripts) {
    ModalDriver modal;
    for (auto& script : scripts) modal.ExpectForm("frmLogin", std::move(script));
    return Tessaline::LoginDialog(file_).Login("Console");
  }

  static void Enter(User& user, const wxString& name, const wxString& password) {
    user.Clear("txtName");
    user.Type("txtName", name);
    user.Clear("txtPassword");
    user.Type("txtPassword", password);
  }

  const std::filesystem::path file_ = folder_ / "deep" / "er" / "mine.directory";
};

TEST_F(LoginFormTest, TheCaretIsInTheNameTabLeadsToThePasswordAndEnterLogsIn) {
  MakeDirectory();
  EXPECT_TRUE(Login({[&](User& user) {
    WaitFor([&] { return user.Find("txtName").HasFocus(); }, "the caret in the name");
    EXPECT_THAT(ToUtf8(user.Title()), HasSubstr("Console"));
    EXPECT_THAT(ToUtf8(user.Read("txtWhere")), HasSubstr(ToUtf8(ToWx(file_.filename().string()))));
    user.Type("txtName", " rOOT ");
    user.Find("txtName").Navigate();
    WaitFor([&] { return user.Find("txtPassword").HasFocus(); }, "the caret in the password");
    user.Type("txtPassword", kPassword);
    user.Press(WXK_RETURN);
  }}));
  EXPECT_EQ(GetConnection()->CurrentUser()->Name(), "Root");
  EXPECT_THAT(LoggedText(), Not(HasSubstr(kPassword)));
}

TEST_F(LoginFormTest, AFailureDoesNotTellWhetherTheNameExistsAndEscCancels) {
  MakeDirectory();
  EXPECT_FALSE(Login({[](User& user) {
    std::vector<wxString> told;
    for (const char* name : {"Root", "nobody"}) {
      Enter(user, name, "wrong password");
      user.Click("cmdOK");
      told.push_back(user.Read("lblMessage"));
      EXPECT_TRUE(user.IsShown("lblMessage"));
      EXPECT_EQ(user.Read("txtPassword"), "");
      WaitFor([&] { return user.Find("txtPassword").HasFocus(); }, "the caret in the password");
    }
    EXPECT_EQ(told[0], told[1]);
    user.Clear("txtName");
    user.Type("txtName", "  ");
    user.Click("cmdOK");
    EXPECT_EQ(user.Read("lblMessage"), GetResource().GetString(61209));
    user.Press(WXK_ESCAPE);
  }}));
  EXPECT_FALSE(GetConnection()->IsLoggedIn());
  EXPECT_THAT(LoggedText(), Not(HasSubstr("wrong password")));
}

TEST_F(LoginFormTest, RepeatedFailuresAreSlowedByACountdownThatKeepsThePassword) {
  MakeDirectory();
  platform::FakeClock clock(1'800'000'000'000);
  EXPECT_TRUE(Login({[&](User& user) {
    for (int attempt = 0; user.IsEnabled("cmdOK") && attempt < 20; ++attempt) {
      Enter(user, "Root", "wrong password");
      user.Click("cmdOK");
    }
    ASSERT_FALSE(user.IsEnabled("cmdOK"));
    user.Clear("txtPassword");
    user.Type("txtPassword", kPassword);
    user.Press(WXK_RETURN);
    EXPECT_FALSE(GetConnection()->IsLoggedIn());
    const auto before = user.Read("lblMessage");
    clock.Advance(1000);
    const auto told = [&] { return user.Read("lblMessage") != before; };
    WaitFor(told, "the next second of the countdown");
    clock.Advance(3'600'000);
    WaitFor([&] { return user.IsEnabled("cmdOK"); }, "the end of the delay");
    EXPECT_FALSE(user.IsShown("lblMessage"));
    EXPECT_EQ(user.Read("txtPassword"), kPassword);
    user.Click("cmdOK");
  }}));
}

TEST_F(LoginFormTest, AMissingDirectoryIsOfferedToBeCreated) {
  ModalDriver modal;
  modal.ExpectForm("frmLogin", [](User& user) {
    EXPECT_FALSE(user.IsEnabled("cmdOK"));
    EXPECT_TRUE(user.IsShown("lblMessage"));
    user.Type("txtServer", "elsewhere");
    EXPECT_FALSE(user.IsShown("cmdCreate"));
    EXPECT_TRUE(user.IsEnabled("cmdOK"));
    user.Clear("txtServer");
    user.Type("txtServer", " (LOCAL) ");
    EXPECT_TRUE(user.IsShown("cmdCreate"));
    user.Click("cmdCreate");
  });
  modal.ExpectForm("frmCreateDirectory", [](User& user) {
    const auto hints = [&](const char* name, const wxString& text, int number) {
      user.Clear(name);
      user.Type(name, text);
      EXPECT_EQ(user.IsEnabled("cmdOK"), number == 61224) << name;
      EXPECT_EQ(user.Read("lblHint").BeforeFirst('('),
                GetResource().GetFormatString(number, {"12", ""}).BeforeFirst('('));
    };
    hints("txtName", "  ", 61221);
    hints("txtName", "Ana", 61222);
    hints("txtPassword", "twelve char", 61222);
    hints("txtPassword", "twelve chars", 61223);
    hints("txtRepeat", "twelve char", 61223);
    hints("txtRepeat", "twelve chars", 61224);
    user.Click("cmdOK");
  });
  ASSERT_TRUE(Tessaline::LoginDialog(file_).Login("Console"));
  EXPECT_EQ(GetConnection()->CurrentUser()->Name(), "Ana");
  EXPECT_THAT(LoggedText(), Not(HasSubstr("twelve")));
}

TEST_F(LoginFormTest, WhatIsWrongWithTheDirectoryOrTheServerIsToldAndCanBeMended) {
  std::filesystem::create_directories(file_.parent_path());
  const auto write = [&](std::string_view bytes) { std::ofstream(file_, std::ios::binary) << bytes; };
  write("this is no directory, and longer than a header would have to be: " + std::string(200, 'x'));
  EXPECT_TRUE(Login({[&](User& user) {
    const auto fails = [&](const char* server, int number, const char* part) {
      user.Clear("txtServer");
      user.Type("txtServer", server);
      Enter(user, "Root", kPassword);
      user.Click("cmdOK");
      wxString told = user.Read("lblMessage");
      told.Replace("\n", " ");
      EXPECT_EQ(told.BeforeFirst(' '), GetResource().GetString(number).BeforeFirst(' ')) << server;
      EXPECT_THAT(ToUtf8(told), HasSubstr(part));
      EXPECT_EQ(user.Read("txtPassword"), kPassword);
    };
    fails("", 60003, "");
    fails("far-away", 60008, "far-away");
    fails("HTTP://web.example/", 60008, "web.example");
    std::filesystem::remove(file_);
    MakeDirectory();
    user.Clear("txtServer");
    user.Click("cmdOK");
  }}));
}

TEST_F(LoginFormTest, EveryWayInWhichAFileCannotBeUsedHasItsText) {
  MakeDirectory();
  std::ifstream stream(file_, std::ios::binary);
  const std::string good((std::istreambuf_iterator<char>(stream)), {});
  stream.close();
  auto newer = good;
  newer.replace(60, 4, std::string("\0\0\0\x7f", 4));
  struct Case {
    std::string content;
    int number;
  };
  // Half a file, the schema of a later version, another program's file.
  const Case cases[] = {{good.substr(0, good.size() / 2), 60004}, {newer, 60005}, {"", 60003}};
  EXPECT_TRUE(Login({[&](User& user) {
    const auto write = [&](const std::string& bytes) {
      std::ofstream(file_, std::ios::binary | std::ios::trunc) << bytes;
    };
    const auto tells = [&](int number) {
      Enter(user, "Root", kPassword);
      user.Click("cmdOK");
      wxString told = user.Read("lblMessage");
      told.Replace("\n", " ");
      EXPECT_EQ(told, GetResource().GetString(number));
    };
    for (const auto& one : cases) {
      write(one.content);
      tells(one.number);
    }
    write(good);
    using std::filesystem::perms;
    for (const auto& folder : {folder_.Path(), file_.parent_path().parent_path(), file_.parent_path()})
      std::filesystem::permissions(folder, perms::all);
    const auto readable = perms::owner_read | perms::group_read | perms::others_read;
    std::filesystem::permissions(file_, readable);
    {
      const OrdinaryUser ordinary;
      // Not every system holds every user to it.
      if (!std::ofstream(file_, std::ios::app)) tells(60006);
    }
    std::filesystem::permissions(file_, readable | perms::owner_write);
    user.Click("cmdOK");
  }}));
}

TEST_F(LoginFormTest, ADisabledAccountIsToldNoMoreThanAWrongPassword) {
  MakeDirectory();
  auto directory = Corvane::EmbeddedDirectoryProvider(file_)({1, "", 0, ""});
  const auto session = directory->Login("Root", kPassword);
  UserRecord record;
  record.name = record.fullName = "Gone";
  record.enabled = false;
  directory->CreateUser(session, record, kPassword);
  directory->Logout(session);
  directory.reset();
  EXPECT_FALSE(Login({[](User& user) {
    std::vector<wxString> told;
    for (const char* password : {kPassword, "wrong password"}) {
      Enter(user, "Gone", password);
      user.Click("cmdOK");
      told.push_back(user.Read("lblMessage"));
    }
    EXPECT_FALSE(told[0].empty());
    EXPECT_EQ(told[0], told[1]);
    user.Press(WXK_ESCAPE);
  }}));
}

TEST_F(LoginFormTest, CapsLockIsToldWhileItIsOn) {
  MakeDirectory();
  EXPECT_FALSE(Login({[](User& user) {
    const auto press = [&] {
      wxKeyEvent key(wxEVT_KEY_UP);
      user.Find("txtPassword").HandleWindowEvent(key);
    };
    const auto step = [&](const char* from, const char* to) {
      return user.Find(to).GetPosition().y - user.Find(from).GetPosition().y;
    };
    const auto leavesNoGap = [&] {
      return step("txtPassword", "txtServer") == step("txtName", "txtPassword");
    };
    EXPECT_TRUE(leavesNoGap());
    {
      const platform::FakeCapsLock on(true);
      press();
      EXPECT_TRUE(user.IsShown("lblCapsLock"));
      EXPECT_FALSE(leavesNoGap());
    }
    const platform::FakeCapsLock off(false);
    press();
    EXPECT_FALSE(user.IsShown("lblCapsLock"));
    EXPECT_TRUE(leavesNoGap());
    user.Press(WXK_ESCAPE);
  }}));
}

TEST_F(LoginFormTest, FitsInEveryLanguageAndSoDoesTheFormThatCreatesADirectory) {
  const auto look = [](User& user) {
    const auto& form = dynamic_cast<const wxTopLevelWindow&>(user.Form());
    ExpectFits(form);
    ExpectTextsOfLanguage(form, 5);
  };
  for (const int code : GetResource().Languages()) {
    SCOPED_TRACE(code);
    ASSERT_TRUE(GetResource().SwitchLanguage(code));
    ModalDriver modal;
    modal.ExpectForm("frmLogin", [&](User& user) {
      look(user);
      modal.ExpectForm("frmCreateDirectory", [&](User& creating) {
        look(creating);
        creating.Type("txtName", "Ana");
        look(creating);
        creating.Press(WXK_ESCAPE);
      });
      user.Click("cmdCreate");
      Enter(user, "  ", kPassword);
      user.Clear("txtServer");
      user.Type("txtServer", "elsewhere");
      user.Click("cmdOK");
      look(user);
      user.Press(WXK_ESCAPE);
    });
    EXPECT_FALSE(Tessaline::LoginDialog(file_).Login(GetResource().GetString(61200)));
  }
}

TEST_F(LoginFormTest, TheTitleFollowsTheLanguage) {
  MakeDirectory();
  ModalDriver modal;
  modal.ExpectForm("frmLogin", [](User& user) {
    user.Choose("cboLanguage", GetResource().LanguageName(1031));
    EXPECT_EQ(user.Title(), GetResource().GetString(61200) + L" \u2013 Anmelden");
    ExpectTextsOfLanguage(dynamic_cast<const wxTopLevelWindow&>(user.Form()), 8);
    user.Press(WXK_ESCAPE);
  });
  EXPECT_FALSE(Tessaline::LoginDialog(file_).Login(GetResource().GetString(61200)));
}

TEST_F(LoginFormTest, TheLanguageChosenIsKeptOnlyWhenTheLoginSucceeds) {
  MakeDirectory();
  const auto chooseArabic = [](User& user) {
    user.Type("txtName", "Root");
    user.Choose("cboLanguage", GetResource().LanguageName(1025));
  };
  EXPECT_FALSE(Login({chooseArabic, [](User& user) {
                        EXPECT_EQ(user.Form().GetLayoutDirection(), wxLayout_RightToLeft);
                        EXPECT_EQ(user.Read("txtName"), "Root");
                        user.Press(WXK_ESCAPE);
                      }}));
  EXPECT_EQ(GetResource().CurrentLanguage(), 1033);
  EXPECT_TRUE(Login({chooseArabic, [](User& user) {
                       Enter(user, "Root", kPassword);
                       user.Click("cmdOK");
                     }}));
  EXPECT_EQ(GetResource().GetSetting(Tessaline::Setting::CurrentLanguage), "1025");
}

TEST_F(LoginFormTest, TheConnectionSettingsCanBeChangedAndTheNewTargetIsShown) {
  EXPECT_FALSE(Login({[](User& user) {
    EXPECT_FALSE(user.IsShown("cmdSettings")) << "nobody offers the form";
    user.Press(WXK_ESCAPE);
  }}));
  MakeDirectory();
  GetResource().SetSetting(Tessaline::Setting::ConfigurationServer, "wrong-server");
  const wxWindow* parent = nullptr;
  std::function<void()> change = [] {};
  SetSettingsForm([&](wxWindow* over) {
    parent = over;
    change();
  });
  const auto speakArabic = [] {
    GetResource().SwitchLanguage(1025);
    GetResource().KeepLanguage();
    GetRefresh()->NotifyLanguage();
  };
  EXPECT_TRUE(Login({[&](User& user) {
                       Enter(user, "Root", kPassword);
                       user.Click("cmdOK");
                       EXPECT_TRUE(user.IsShown("lblMessage")) << "a server that is not there";
                       user.Clear("txtServer");
                       user.Type("txtServer", "typed");
                       user.Click("cmdSettings");
                       EXPECT_EQ(parent, &user.Form());
                       EXPECT_EQ(user.Read("txtServer"), "typed") << "the settings are as they were";
                       change = [&] {
                         GetResource().SetSetting(Tessaline::Setting::ConfigurationServer, "(local)");
                         speakArabic();
                       };
                       user.Click("cmdSettings");
                     },
                     [&](User& user) {
                       EXPECT_EQ(user.Form().GetLayoutDirection(), wxLayout_RightToLeft);
                       EXPECT_EQ(user.Read("txtServer"), "(local)");
                       EXPECT_THAT(ToUtf8(user.Read("txtWhere")), HasSubstr("mine.directory"));
                       EXPECT_EQ(user.Read("cboLanguage"), GetResource().LanguageName(1025));
                       Enter(user, "Root", kPassword);
                       user.Click("cmdOK");
                     }}));
  SetSettingsForm({});
}

}  // namespace
}  // namespace mindloft::test
