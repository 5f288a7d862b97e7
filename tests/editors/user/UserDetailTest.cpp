#include <gmock/gmock.h>
#include <wx/notebook.h>

#include "backend/tessaline/Text.h"
#include "controls/texts/FramedTextBox.h"
#include "editors/user/EMailRule.h"
#include "platform/ui/Keyboard.h"
#include "tests/editors/user/UserDetailFixture.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {

using testing::ElementsAre;
using testing::HasSubstr;

class UserDetailTest : public UserDetailFixture {
 protected:
  static bool IsLocked(const User& user, const char* box) { return user.Find<FramedTextBox>(box).Locked(); }
  /// The error that the next command ends with.
  void ExpectError(ErrorNumber number) {
    modal_.ExpectForm("frmErrorManager", [number](User& user) {
      EXPECT_THAT(user.Title().utf8_string(),
                  HasSubstr("'" + std::to_string(static_cast<int>(number)) + "'"));
      user.Click("cmdOK");
    });
  }
};

TEST(EMailRuleTest, TakesExactlyOneSignBetweenOtherCharacters) {
  struct Case {
    const char* text;
    bool valid;
  };
  for (const Case each :
       {Case{"a@b", true}, Case{"anna@example.org", true}, Case{"@b", false}, Case{"a@", false},
        Case{"@", false}, Case{"a", false}, Case{"a@b@c", false}, Case{"a@@b", false}, Case{" @ ", true}})
    EXPECT_EQ(IsEMailAddress(each.text), each.valid) << each.text;
}

TEST_F(UserDetailTest, ShowsTheUserAndChangesNothing) {
  const auto before = Stored("anna");
  EXPECT_EQ(Edit(Named("anna"),
                 [](User& user) {
                   EXPECT_EQ(user.Title(), "Properties: anna");
                   EXPECT_EQ(user.Read("txtName"), "anna");
                   EXPECT_EQ(user.Read("txtFName"), "Full anna");
                   EXPECT_EQ(user.Read("TxtDesc"), "first line\nsecond line");
                   EXPECT_EQ(user.Read("txtLastLogin"), "never");
                   EXPECT_TRUE(IsLocked(user, "txtName"));
                   EXPECT_FALSE(IsLocked(user, "txtFName"));
                   for (const char* button : {"cmdApply", "cmdResetPwd", "cmdCopyPwd"})
                     EXPECT_FALSE(user.IsEnabled(button)) << button;
                   EXPECT_TRUE(user.IsShown("Picture1"));
                   user.SelectPage("sstUser", 1);
                   EXPECT_FALSE(user.IsShown("Picture1"));
                   user.SelectPage("sstUser", 2);
                   EXPECT_FALSE(user.IsEnabled("cmdApply")) << "to look is no change";
                   user.Click("cmdOK");
                 }),
            wxID_OK);
  EXPECT_EQ(Stored("anna"), before);
}

TEST_F(UserDetailTest, StoresWhatWasEditedAndStaysOpen) {
  const auto anna = Named("anna");
  Edit(anna, [this](User& user) {
    user.Clear("txtFName");
    user.Type("txtFName", L"Anna & \"O'Neil\" \u0639\u0645\u0631");
    user.Type("txtMail", "a@b");
    EXPECT_TRUE(user.IsEnabled("cmdApply"));
    EXPECT_TRUE(user.IsEnabled("cmdResetPwd"));
    user.Click("cmdApply");
    EXPECT_FALSE(user.IsEnabled("cmdApply"));
    EXPECT_EQ(Stored("anna").fullName, ToUtf8(L"Anna & \"O'Neil\" \u0639\u0645\u0631"));
    EXPECT_EQ(Stored("anna").email, "a@b");
    EXPECT_EQ(Stored("anna").description, "first line\nsecond line");
    user.Type("txtTel", "1");
    user.Check("chkEnabled", false);
    user.Click("cmdOK");
  });
  EXPECT_EQ(Stored("anna").telephone, "1");
  EXPECT_FALSE(Stored("anna").enabled);
}

TEST_F(UserDetailTest, TheKeyboardBeginsAtTheName) {
  Edit(Server().Users()->Add(), [](User& user) {
    const auto isInName = [&user] {
      wxWindow* focus = wxWindow::FindFocus();
      return focus && user.Find("txtName").IsDescendant(focus);
    };
    WaitFor(isInName, "the focus in the name");
    user.Click("cmdCancel");
  });
}

TEST_F(UserDetailTest, CancelDropsWhatWasEdited) {
  const auto anna = Named("anna");
  EXPECT_EQ(Edit(anna,
                 [](User& user) {
                   user.Type("txtFName", "x");
                   user.Click("cmdCancel");
                 }),
            wxID_CANCEL);
  anna->Update();
  EXPECT_EQ(Stored("anna").fullName, "Full anna");
}

TEST_F(UserDetailTest, CloseBoxAndEscAskBeforeChangesAreLost) {
  EXPECT_EQ(Edit(Named("anna"),
                 [this](User& user) {
                   user.Type("txtFName", "x");
                   modal_.ExpectMessage(61600, wxID_NO);
                   user.Press(WXK_ESCAPE, 0, "txtFName");
                   modal_.Verify();
                   EXPECT_TRUE(user.Form().IsShown());
                   modal_.ExpectMessage(61600, wxID_YES);
                   user.Form().Close();
                 }),
            wxID_CANCEL);
  Edit(Named("anna"), [](User& user) { user.Press(WXK_ESCAPE, 0, "txtFName"); });
  EXPECT_EQ(Stored("anna").fullName, "Full anna");
}

TEST_F(UserDetailTest, ChecksWarnButTheBackEndDecides) {
  Edit(Named("anna"), [this](User& user) {
    user.SelectPage("sstUser", 1);
    user.SelectPage("sstUser", 0);
    user.Clear("txtFName");
    user.Type("txtMail", "a@b@c");
    user.SelectPage("sstUser", 1);
    modal_.ExpectMessage(51103, wxID_OK);
    modal_.ExpectMessage(51330, wxID_OK);
    user.Click("cmdApply");
    EXPECT_THAT(modal_.LastMessage().utf8_string(), HasSubstr("E-mail"));
    EXPECT_TRUE(user.IsShown("Picture1")) << "the page of the field";
    EXPECT_FALSE(user.IsEnabled("cmdApply"));
    user.Click("cmdCancel");
  });
  EXPECT_EQ(Stored("anna").email, "a@b@c");
  EXPECT_EQ(Stored("anna").fullName, "");
}

TEST_F(UserDetailTest, ATextThatCannotBeStoredIsRefusedByTheFieldsName) {
  Edit(Named("anna"), [this](User& user) {
    user.Type("txtFName", L"\u202E");
    modal_.ExpectForm("frmErrorManager", [](User& error) {
      EXPECT_TRUE(error.Title().Contains("60045"));
      EXPECT_TRUE(error.Read("lblHeadline").Contains("Full name"));
      error.Click("cmdOK");
    });
    user.Click("cmdApply");
    EXPECT_TRUE(user.IsEnabled("cmdApply"));
    user.Click("cmdCancel");
  });
  EXPECT_EQ(Stored("anna").fullName, "Full anna");
}

TEST_F(UserDetailTest, ANewUserNeedsAName) {
  const auto user = Server().Users()->Add();
  Edit(user, [this](User& form) {
    EXPECT_EQ(form.Title(), "New user");
    EXPECT_FALSE(IsLocked(form, "txtName"));
    form.Type("txtFName", "Nobody");
    for (const char* button : {"cmdApply", "cmdOK"}) {
      modal_.ExpectMessage(51102, wxID_OK);
      ExpectError(ErrorNumber::NameMissing);
      form.Click(button);
      modal_.Verify();
      EXPECT_TRUE(form.IsEnabled("cmdApply"));
    }
    form.Type("txtName", "admin");
    ExpectError(ErrorNumber::NameExists);
    form.Click("cmdOK");
    form.Click("cmdCancel");
  });
  EXPECT_TRUE(user->IsNew());
}

TEST_F(UserDetailTest, ANewUserGetsPasswordAndMembershipsAtOnce) {
  const auto carl = Server().Users()->Add();
  Edit(carl, [this](User& user) {
    user.SelectPage("sstUser", 2);
    ClickCheck(user, "ctDomain", "Beta");
    ClickCheck(user, "ctGroup", "Authors");
    user.SelectPage("sstUser", 0);
    user.Type("txtName", "carl");
    user.Type("txtFName", "Carl");
    user.Type("txtPwd", "too short");
    user.Type("txtCfmPwd", "too short");
    EXPECT_FALSE(user.IsEnabled("cmdResetPwd"));
    ExpectError(ErrorNumber::PasswordTooShort);
    user.Click("cmdApply");
    EXPECT_EQ(Named("carl"), nullptr) << "no user without the wanted password";
    for (const char* box : {"txtPwd", "txtCfmPwd"}) {
      user.Clear(box);
      user.Type(box, "long enough for Carl");
    }
    user.Click("cmdApply");
    EXPECT_EQ(user.Title(), "Properties: carl");
    EXPECT_TRUE(IsLocked(user, "txtName"));
    EXPECT_EQ(user.Read("txtPwd"), "") << "a stored password has no business on the screen";
    user.Click("cmdOK");
  });
  EXPECT_THAT(DomainsOf("carl"), ElementsAre("Beta"));
  EXPECT_THAT(GroupsOf("carl"), ElementsAre("Authors"));
  LogIn("carl", "long enough for Carl");
}

TEST_F(UserDetailTest, DifferentPasswordsSaveNothing) {
  Edit(Named("anna"), [this](User& user) {
    user.Type("txtFName", "x");
    user.Type("txtPwd", "long enough for anna");
    user.Type("txtCfmPwd", "Long enough for anna");
    for (const char* button : {"cmdApply", "cmdOK", "cmdResetPwd"}) {
      modal_.ExpectMessage(55101, wxID_OK);
      user.Click(button);
      modal_.Verify();
      EXPECT_TRUE(user.IsEnabled("cmdApply")) << button;
    }
    user.Click("cmdCancel");
  });
  EXPECT_EQ(Stored("anna").fullName, "Full anna");
  LogIn("anna");
}

TEST_F(UserDetailTest, SetsAPasswordAtOnceAndTellsNobody) {
  const std::string password = "Zebra-crossing-77";
  Edit(Named("anna"), [&](User& user) {
    user.Type("txtPwd", password);
    user.Type("txtCfmPwd", password);
    user.Click("cmdResetPwd");
    EXPECT_FALSE(user.IsEnabled("cmdResetPwd"));
    EXPECT_EQ(user.Read("lblStrength"), "The password has been set.");
    user.Click("cmdCancel");
  });
  for (const auto& change : Server().Log()->View().Page(0, 100))
    EXPECT_EQ((change.before + change.after).find(password), std::string::npos);
  EXPECT_EQ(LoggedText().find(password), std::string::npos);
  LogIn("anna", password);
}

TEST_F(UserDetailTest, HelpsWithPasswords) {
  Edit(Named("anna"), [](User& user) {
    user.Type("txtPwd", "short");
    EXPECT_THAT(user.Read("lblStrength").utf8_string(), HasSubstr("12"));
    user.Clear("txtPwd");
    user.Type("txtPwd", "anna is my name 123 %");
    EXPECT_EQ(user.Read("lblStrength"), "Weak: easy to guess.") << "it holds the name";
    user.Click("cmdGenerate");
    EXPECT_EQ(user.Read("lblStrength"), "Strong.");
    EXPECT_EQ(user.Read("txtPwd"), user.Read("txtCfmPwd"));
    const wxString first = user.Read("txtPwd");
    EXPECT_GE(first.length(), 12u);
    EXPECT_TRUE(user.IsEnabled("cmdCopyPwd"));
    user.Click("cmdGenerate");
    EXPECT_NE(user.Read("txtPwd"), first);
    user.Check("chkShowPwd");
    EXPECT_EQ(user.Read("txtPwd"), user.Read("txtCfmPwd"));
    const platform::FakeCapsLock caps(true);
    EXPECT_FALSE(user.IsShown("lblCapsLock"));
    user.Type("txtPwd", "A");
    EXPECT_TRUE(user.IsShown("lblCapsLock"));
    user.Click("cmdCancel");
  });
}

TEST_F(UserDetailTest, OwnAccountAndOtherRights) {
  LogIn("bob");
  Edit(Named("anna"), [](User& user) {
    for (const char* box : {"txtName", "txtFName", "txtDept", "txtMail", "txtTel", "TxtDesc", "txtPwd"})
      EXPECT_TRUE(IsLocked(user, box)) << box;
    user.SelectPage("sstUser", 1);
    // What may not be changed can still be searched through.
    auto& roles = user.Find<ctExplorer>("ctRole");
    EXPECT_TRUE(user.IsEnabled("ctRole"));
    const auto all = roles.ListCount();
    roles.SetFilter("log");
    EXPECT_LT(roles.ListCount(), all);
    roles.SetFilter({});
    user.SelectPage("sstUser", 2);
    user.SelectPage("sstUser", 1);
    for (std::int64_t row = 0; row < all; ++row) {
      roles.SelectListRow(row);
      roles.ClickCheck(row);
    }
    for (const char* list : {"ctRole", "ctDomain", "ctGroup"})
      EXPECT_TRUE(user.Find<ctExplorer>(list).Locked()) << list;
    EXPECT_FALSE(user.IsEnabled("cmdApply"));
    user.Click("cmdOK");
  });
  Edit(Named("bob"), [](User& user) {
    EXPECT_TRUE(IsLocked(user, "txtName"));
    EXPECT_FALSE(IsLocked(user, "txtPwd"));
    EXPECT_FALSE(user.IsEnabled("chkEnabled"));
    user.Type("txtTel", "55");
    user.Click("cmdOK");
  });
  EXPECT_EQ(Stored("bob").telephone, "55");
  LogIn("admin");
  Edit(Named("admin"), [](User& user) {
    EXPECT_FALSE(user.IsEnabled("chkEnabled")) << "nobody locks himself out";
    user.Click("cmdCancel");
  });
}

}  // namespace mindloft::test
