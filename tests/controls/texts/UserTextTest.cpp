#include <gmock/gmock.h>

#include "controls/texts/UserEditor.h"
#include "controls/texts/UserText.h"
#include "tests/controls/bag/RoundTrip.h"
#include "tests/controls/texts/TextsFixture.h"
#include "tests/support/gui/ModalDriver.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

class UserTextTest : public TextsFixture {
 protected:
  void SetUp() override {
    TextsFixture::SetUp();
    SetUserEditor([this](const std::shared_ptr<Corvane::User>& user) { edited_.push_back(user->Name()); });
  }
  void TearDown() override {
    SetUserEditor({});
    TextsFixture::TearDown();
  }
  UserText& Show() { return TextsFixture::Show(new UserText(frame_, "txtOwner")); }
  static std::shared_ptr<Corvane::User> Named(const std::string& name) {
    // Nothing is read of a user that is only shown.
    auto user = std::make_shared<Corvane::User>(nullptr);
    user->SetName(name);
    return user;
  }
  void DoubleClick() { Click(wxEVT_LEFT_DCLICK, "txtUser"); }

  std::vector<std::string> edited_;
};

TEST_F(UserTextTest, KeepsItsProperties) {
  ExpectDefaults<UserText>("UserText", {{"DisplayUser", "False"},
                                        {"Locked", "True"},
                                        {"HasFrame", "False"},
                                        {"Frame2000", "False"},
                                        {"FrameColor", "&H80000010"},
                                        {"Text", ""},
                                        {"Enabled", "True"},
                                        {"FontUnderline", "False"},
                                        {"Alignment", "0"},
                                        {"BackColor", "&H8000000F"}});
  ExpectRoundTrips<UserText>("UserText", {"2"});
  ExpectRefusals("UserText", "HasFrame");
  EXPECT_THAT(RefusalOf("UserText", "<Alignment>3</Alignment>"), HasSubstr("Alignment"));
}

TEST_F(UserTextTest, ShowsAndForgetsAUser) {
  auto& text = Show();
  const auto anna = Named("Anna Österreich");
  text.SetUser(anna);
  EXPECT_EQ(text.Text(), wxString::FromUTF8("Anna Österreich"));
  EXPECT_EQ(text.User(), anna);
  EXPECT_THAT(Events(), ElementsAre("Change"));
  text.EmptyUser();
  EXPECT_EQ(text.Text(), "");
  EXPECT_EQ(text.User(), nullptr);
  text.SetUser(anna);
  text.SetUser(nullptr);
  EXPECT_EQ(text.Text(), "");
}

TEST_F(UserTextTest, DoubleClickOpensTheEditorOrIsTold) {
  auto& text = Show();
  text.SetUser(Named("anna"));
  Events();
  DoubleClick();
  EXPECT_THAT(Events(), ElementsAre("DblClick"));
  EXPECT_THAT(edited_, ElementsAre());
  text.SetDisplayUser(true);
  DoubleClick();
  Press(WXK_SPACE, 0, "txtUser");
  EXPECT_THAT(edited_, ElementsAre("anna", "anna"));
  EXPECT_THAT(Events(), Not(Contains("DblClick")));
  text.SetUser(Named("Unknown User"));
  DoubleClick();
  text.EmptyUser();
  DoubleClick();
  EXPECT_THAT(edited_, ElementsAre("anna", "anna"));
  EXPECT_THAT(Events(), Not(Contains("DblClick")));
}

TEST_F(UserTextTest, ShowsTheNameThatTheEditorGave) {
  auto& text = Show();
  text.SetDisplayUser(true);
  text.SetUser(Named("anna"));
  SetUserEditor([](const std::shared_ptr<Corvane::User>& user) { user->SetName("bert"); });
  DoubleClick();
  EXPECT_EQ(text.Text(), "bert");
  SetUserEditor([&](const std::shared_ptr<Corvane::User>&) { text.SetUser(Named("carla")); });
  DoubleClick();
  EXPECT_EQ(text.Text(), "carla");
  // The form goes while the editor is open.
  SetUserEditor([&](const std::shared_ptr<Corvane::User>&) { text.SetUser(nullptr); });
  DoubleClick();
  EXPECT_EQ(text.Text(), "");
}

TEST_F(UserTextTest, AFailureOfTheEditorIsShown) {
  auto& text = Show();
  text.SetDisplayUser(true);
  text.SetUser(Named("anna"));
  SetUserEditor({});
  ModalDriver modal;
  modal.ExpectForm("frmErrorManager", [](User& user) { user.Click("cmdOK"); });
  DoubleClick();
}

TEST_F(UserTextTest, IsReadAndSelectedByKeys) {
  auto& text = Show();
  text.SetText("some name");
  Type("x", "txtUser");
  Paste("y", "txtUser");
  EXPECT_EQ(text.Text(), "some name");
  Press('A', wxMOD_CONTROL, "txtUser");
  EXPECT_EQ(Box("txtUser").GetStringSelection(), "some name");
  Box("txtUser").Copy();
  Settle();
  EXPECT_EQ(Clipboard(), "some name");
  text.SetLocked(false);
  Box("txtUser").SetInsertionPointEnd();
  Type("!", "txtUser");
  EXPECT_EQ(text.Text(), "some name!");
  for (const std::int16_t alignment : {1, 2, 0}) {
    text.SetAlignment(alignment);
    Settle();
    EXPECT_EQ(text.Text(), "some name!");
    EXPECT_FALSE(text.Locked());
  }
  text.SetEnabled(false);
  text.SetAlignment(1);
  EXPECT_FALSE(text.Enabled());
  EXPECT_FALSE(Box("txtUser").IsEnabled());
  EXPECT_TRUE(Box("txtUser").IsThisEnabled());
}

}  // namespace
}  // namespace mindloft::test
