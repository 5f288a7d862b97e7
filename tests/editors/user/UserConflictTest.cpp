#include <gmock/gmock.h>

#include "backend/tessaline/Text.h"
#include "editors/frmConflict.h"
#include "tests/editors/user/UserDetailFixture.h"
#include "tests/support/gui/FormLooks.h"

namespace mindloft::test {

using testing::ElementsAre;
using testing::HasSubstr;

/// Two consoles at work on one user.
class UserConflictTest : public UserDetailFixture {
 protected:
  void ChangeElsewhere(const std::function<void(Corvane::User&)>& change) {
    OtherConsole other(file_, "admin", kPassword);
    const auto anna = other.Server()->Users()->Item(Named("anna")->Id());
    change(*anna);
    anna->Update();
  }
  void Answer(const char* button) {
    modal_.ExpectForm("frmConflict", [button](User& user) {
      EXPECT_THAT(user.Read("lblWhat").utf8_string(), HasSubstr("admin"));
      EXPECT_EQ(user.Read("txtMine0"), "mine");
      EXPECT_EQ(user.Read("txtTheirs0"), "theirs");
      user.Click(button);
    });
  }
};

TEST_F(UserConflictTest, ChangesOfDifferentFieldsAreMerged) {
  Edit(Named("anna"), [this](User& user) {
    user.Type("txtTel", "123");
    user.SelectPage("sstUser", 1);
    ClickCheck(user, "ctRole", Names(user, "ctRole").front());
    ChangeElsewhere([this](Corvane::User& anna) {
      anna.SetDepartment("theirs");
      anna.ChangeGroups(Group("Alpha", "Writers")->Id(), "");
    });
    user.Click("cmdApply");
    user.SelectPage("sstUser", 0);
    EXPECT_EQ(user.Read("txtDept"), "theirs");
    EXPECT_EQ(user.Read("txtTel"), "123");
    user.Click("cmdOK");
  });
  EXPECT_EQ(Stored("anna").department, "theirs");
  EXPECT_EQ(Stored("anna").telephone, "123");
  EXPECT_NE(Named("anna")->RoleIds(), "");
  EXPECT_THAT(GroupsOf("anna"), ElementsAre("Readers", "Writers"));
}

TEST_F(UserConflictTest, TheQuestionFitsInEveryLanguage) {
  ExpectLooksOpened(modal_, "frmConflict", "cmdBack", 9, [] {
    const Error conflict(ErrorNumber::Conflict, {}, {"anna", "admin", "2026-01-01T10:00:00Z"});
    std::vector<FieldDifference> differences;
    for (const int label : {59306, 59307, 59308, 59414, 61604})
      differences.push_back({GetResource().GetString(label), wxString('m', 100), "theirs"});
    EXPECT_EQ(frmConflict(nullptr, conflict, differences).Ask(), ConflictChoice::GoBack);
  });
}

TEST_F(UserConflictTest, TheUserDecidesAboutFieldsThatBothChanged) {
  struct Case {
    const char* button;
    const char* stored;
  };
  for (const Case each : {Case{"cmdMine", "mine"}, Case{"cmdTheirs", "theirs"}}) {
    Edit(Named("anna"), [&](User& user) {
      user.Clear("txtDept");
      user.Type("txtDept", "mine");
      user.Type("txtTel", "1");
      ChangeElsewhere([](Corvane::User& anna) { anna.SetDepartment("theirs"); });
      // Who goes back is asked again: nothing is overwritten by trying twice.
      Answer("cmdBack");
      user.Click("cmdApply");
      EXPECT_EQ(Stored("anna").department, "theirs");
      EXPECT_TRUE(user.IsEnabled("cmdApply"));
      EXPECT_EQ(user.Read("txtDept"), "mine");
      Answer(each.button);
      user.Click("cmdApply");
      EXPECT_EQ(user.Read("txtDept"), each.stored);
      user.Click("cmdOK");
    });
    EXPECT_EQ(Stored("anna").department, each.stored);
    ChangeElsewhere([](Corvane::User& anna) {
      anna.SetDepartment("");
      anna.SetTelephone("");
    });
  }
}

TEST_F(UserConflictTest, APasswordIsNotSetOverAnotherOneUnasked) {
  for (const bool mine : {false, true}) {
    Edit(Named("anna"), [&](User& user) {
      user.Type("txtPwd", "the password from here");
      user.Type("txtCfmPwd", "the password from here");
      ChangeElsewhere([](Corvane::User& anna) { anna.SetPassword("the password from there"); });
      modal_.ExpectForm("frmConflict",
                        [mine](User& conflict) { conflict.Click(mine ? "cmdMine" : "cmdTheirs"); });
      user.Click(mine ? "cmdOK" : "cmdResetPwd");
      if (!mine) user.Click("cmdCancel");
    });
    EXPECT_EQ(GetConnection()->Login("anna", mine ? "the password from here" : "the password from there"),
              true)
        << mine;
    LogIn("admin");
  }
}

TEST_F(UserConflictTest, AUserWhoIsGoneIsTold) {
  Edit(Named("bob"), [this](User& user) {
    user.Type("txtTel", "1");
    OtherConsole other(file_, "admin", kPassword);
    const auto bob = Named("bob")->Stored();
    other.Server()->Users()->Delete({{bob.id, bob.version}});
    modal_.ExpectForm("frmErrorManager", [](User& error) {
      EXPECT_TRUE(error.Title().Contains("60041"));
      error.Click("cmdOK");
    });
    user.Click("cmdApply");
    user.Click("cmdCancel");
  });
}

}  // namespace mindloft::test
