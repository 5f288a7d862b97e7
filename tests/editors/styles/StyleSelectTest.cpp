#include <gmock/gmock.h>
#include <wx/choice.h>

#include "backend/tessaline/Services.h"
#include "controls/styles/StyleEditor.h"
#include "controls/styles/frmStyleSelect.h"
#include "core/Refresh.h"
#include "tests/editors/styles/StylesFixture.h"

namespace mindloft::test {

using testing::HasSubstr;
using testing::Not;

class StyleSelectTest : public StylesFixture {
 protected:
  void TearDown() override {
    SetStyleEditor({});
    StylesFixture::TearDown();
  }
  static wxChoice& List(const User& user) { return user.Find<wxChoice>("CmbStyle"); }
  /// The name of what the picker returns; "none".
  std::string Pick(const std::shared_ptr<Corvane::Style>& style, bool offerEmpty,
                   ModalDriver::Script script) {
    modal_.ExpectForm("frmStyleSelect", std::move(script));
    frmStyleSelect picker(nullptr);
    const auto chosen = picker.Display(style, offerEmpty);
    accepted_ = picker.Accepted();
    return chosen ? chosen->Name() : "none";
  }
  bool accepted_ = false;
};

TEST_F(StyleSelectTest, SelectsWhatIsPassedInAndReturnsTheChoice) {
  AddStyle("Own", {.bold = true, .sample = "sample of its own"});
  struct Case {
    const char* passed;
    bool offerEmpty;
    wxString selected;  ///< when the form opens; empty: nothing
    wxString choose;    ///< empty: nothing
    bool accept;
    std::string expected;
  };
  for (const auto& [passed, offerEmpty, selected, choose, accept, expected] :
       {Case{nullptr, true, "(no style)", "", true, "none"},
        Case{nullptr, true, "(no style)", "Slate", true, "Slate"},
        Case{nullptr, false, "Forest", "", true, "Forest"},
        Case{"Slate", true, "Slate", "(no style)", true, "none"},
        Case{"Slate", false, "Slate", "Own", true, "Own"}, Case{"Slate", true, "Slate", "Own", false, "Own"},
        Case{"Slate", true, "Slate", "", false, "Slate"}}) {
    SCOPED_TRACE(std::string(passed ? passed : "none") + " to " + expected +
                 (accept ? "" : ", not accepted"));
    const auto before = LoggedText();
    const auto result = Pick(passed ? StyleOf(passed) : nullptr, offerEmpty, [&](User& user) {
      EXPECT_EQ(List(user).GetStringSelection(), selected);
      EXPECT_EQ(List(user).GetCount(), Server().Styles()->Count() + (offerEmpty ? 1 : 0));
      EXPECT_EQ(Shown(user).empty(), selected == "(no style)");
      if (!choose.empty()) user.Choose("CmbStyle", choose);
      if (choose == "Own") {
        EXPECT_EQ(Shown(user), "sample of its own");
      }
      if (choose == "(no style)") {
        EXPECT_EQ(Shown(user), "");
      }
      user.Click(accept ? "cmdOK" : "CmdCancel");
    });
    EXPECT_EQ(result, expected);
    EXPECT_EQ(accepted_, accept);
    const auto logged = LoggedText().substr(before.size());
    EXPECT_EQ(logged.find("choice of a style was not accepted") == std::string::npos, accept) << logged;
  }
}

TEST_F(StyleSelectTest, AStyleThatIsGoneIsNotSelected) {
  const auto gone = AddStyle("Gone", {});
  Server().Styles()->Delete({gone->Stored().id, gone->Stored().version});
  EXPECT_EQ(Pick(gone, true,
                 [&](User& user) {
                   EXPECT_EQ(List(user).GetSelection(), wxNOT_FOUND);
                   user.Click("CmdCancel");
                 }),
            "Gone");
  // One that goes while the form is open.
  const auto going = AddStyle("Going", {});
  EXPECT_EQ(Pick(nullptr, true,
                 [&](User& user) {
                   Server().Styles()->Delete({going->Stored().id, going->Stored().version});
                   modal_.ExpectForm("frmErrorManager", [](User& error) { error.Click("cmdOK"); });
                   user.Choose("CmbStyle", "Going");
                   EXPECT_EQ(List(user).FindString("Going"), wxNOT_FOUND);
                   EXPECT_EQ(List(user).GetSelection(), 0);
                   user.Click("cmdOK");
                 }),
            "none");
}

TEST_F(StyleSelectTest, TellsOfFontsAndDamageAndFollowsTheLanguage) {
  AddStyle("Rare", {.fontName = "No Such Font 4711"});
  auto damaged = AddStyle("Damaged", {});
  damaged->SetDefinition("<style bold='perhaps'/>");
  damaged->Update();
  EXPECT_EQ(Pick(StyleOf("Slate"), true,
                 [&](User& user) {
                   modal_.ExpectMessage(61950, wxID_OK);
                   user.Choose("CmbStyle", "Rare");
                   EXPECT_EQ(Shown(user), "");
                   modal_.ExpectMessage(61951, wxID_OK);
                   user.Choose("CmbStyle", "Damaged");
                   EXPECT_NE(Shown(user), "");
                   user.Choose("CmbStyle", "Paper");
                   const auto english = Shown(user);
                   ASSERT_TRUE(GetResource().SwitchLanguage(1025));
                   GetRefresh()->NotifyLanguage();
                   EXPECT_NE(List(user).GetString(0), "(no style)");
                   EXPECT_EQ(List(user).GetStringSelection(), "Paper");
                   EXPECT_NE(Shown(user), english);
                   EXPECT_EQ(Preview(user).GetLayoutDirection(), wxLayout_LeftToRight);
                   EXPECT_NE(user.Read("cmdOK"), "OK");
                   GetResource().SwitchLanguage(1033);
                   GetRefresh()->NotifyLanguage();
                   user.Click("cmdOK");
                 }),
            "Paper");
}

TEST_F(StyleSelectTest, TheStylesThemselvesCanBeEditedWithTheRightTo) {
  Pick(nullptr, true, [](User& user) {
    EXPECT_FALSE(user.IsEnabled("cmdStyles"));  // no editor
    user.Click("CmdCancel");
  });
  SetStyleEditor([this](wxWindow*) {
    const auto slate = StyleOf("Slate");
    slate->SetName("Schiefer");
    slate->Update();
  });
  EXPECT_EQ(Pick(StyleOf("Slate"), true,
                 [](User& user) {
                   user.Click("cmdStyles");
                   EXPECT_EQ(List(user).GetStringSelection(), "Schiefer");
                   EXPECT_EQ(List(user).FindString("Slate"), wxNOT_FOUND);
                   user.Click("cmdOK");
                 }),
            "Schiefer");
  LogIn("plain");
  Pick(nullptr, true, [](User& user) {
    EXPECT_FALSE(user.IsEnabled("cmdStyles"));
    user.Click("CmdCancel");
  });
}

}  // namespace mindloft::test
