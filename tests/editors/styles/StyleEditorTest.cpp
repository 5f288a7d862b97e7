#include <gmock/gmock.h>
#include <wx/checkbox.h>
#include <wx/clrpicker.h>
#include <wx/combobox.h>

#include "backend/corvane/StyleXml.h"
#include "backend/tessaline/Services.h"
#include "controls/styles/frmStyleSelect.h"
#include "controls/texts/UseTextBox.h"
#include "editors/styles/frmStyleDetail.h"
#include "editors/styles/frmStyles.h"
#include "tests/editors/styles/StylesFixture.h"
#include "tests/support/gui/FormLooks.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {

using testing::Contains;
using testing::Not;

class StyleEditorTest : public StylesFixture {
 protected:
  static constexpr const char* kMissing = "No Such Font 4711";

  void Edit(const std::shared_ptr<Corvane::Style>& style, ModalDriver::Script script) {
    modal_.ExpectForm("frmStyleDetail", std::move(script));
    frmStyleDetail(nullptr).OpenWindow(style);
  }
  void OpenStyles(ModalDriver::Script script) {
    modal_.ExpectForm("frmStyles", std::move(script));
    frmStyles(nullptr).OpenWindow();
  }
  static void SetText(User& user, const char* box, const wxString& text) {
    user.Clear(box);
    user.Type(box, text);
  }
  static void PickColour(User& user, const char* name, const wxColour& colour) {
    auto& picker = user.Find<wxColourPickerCtrl>(name);
    ASSERT_TRUE(user.IsEnabled(name));
    picker.SetColour(colour);
    wxColourPickerEvent event(&picker, picker.GetId(), colour);
    picker.HandleWindowEvent(event);
  }
  static void SelectNamed(const User& user, const wxString& name) {
    auto& list = Explorer(user, "ctStyle");
    for (std::int64_t row = 0; row < list.ListCount(); ++row)
      if (list.ListRow(row).fields.BeforeFirst(wxUniChar(1)) == name) {
        list.SelectListRow(row);
        Settle();
        return;
      }
    FAIL() << name;
  }
};

TEST_F(StyleEditorTest, ANewStyleIsStoredAsItWasSet) {
  Edit(Server().Styles()->Add(), [&](User& user) {
    EXPECT_EQ(user.Title(), "New style");
    EXPECT_FALSE(user.IsEnabled("cmdApply"));
    modal_.ExpectMessage(51102, wxID_OK);
    user.Click("cmdOK");
    user.Type("txtName", "slate");
    user.Choose("cboFont", "serif");
    SetText(user, "txtSize", "24");
    user.Check("chkBold");
    user.Check("chkItalic");
    user.Check("chkUnderline");
    user.Check("chkStrikeThrough");
    EXPECT_FALSE(user.IsEnabled("clrText"));
    user.Check("chkColour");
    PickColour(user, "clrText", wxColour("#112233"));
    user.Check("chkBackground");
    PickColour(user, "clrBackground", wxColour("#ddeeff"));
    user.Choose("cboAlignment", "Centred");
    SetText(user, "txtLeftIndent", "4");
    SetText(user, "txtRightIndent", "3");
    SetText(user, "txtFirstLine", "-2");
    SetText(user, "txtSpaceBefore", "1");
    SetText(user, "txtSpaceAfter", "5");
    user.Type("txtSample", "own sample");
    EXPECT_EQ(Shown(user), "own sample");
    wxRichTextAttr look;
    Preview(user).GetStyle(0, look);
    EXPECT_EQ(look.GetFontSize(), 24);
    EXPECT_EQ(look.GetTextColour(), wxColour("#112233"));
    // The name is taken, in whatever case.
    modal_.ExpectForm("frmErrorManager", [](User& error) { error.Click("cmdOK"); });
    user.Click("cmdOK");
    SetText(user, "txtName", "Mine");
    user.Click("cmdApply");
    EXPECT_EQ(user.Title(), "Properties: Mine");
    EXPECT_FALSE(user.IsEnabled("cmdApply"));
    user.Click("cmdOK");
  });
  const auto stored = StyleOf("Mine");
  ASSERT_TRUE(stored);
  const Corvane::StyleFormat expected = {.fontName = "serif",
                                         .fontSize = 24,
                                         .bold = true,
                                         .italic = true,
                                         .underline = true,
                                         .strikeThrough = true,
                                         .colour = "#112233",
                                         .alignment = Corvane::StyleFormat::AlignCentred,
                                         .leftIndent = "4",
                                         .rightIndent = "3",
                                         .firstLineIndent = "-2",
                                         .spaceBefore = "1",
                                         .spaceAfter = "5",
                                         .background = "#DDEEFF",
                                         .sample = "own sample"};
  EXPECT_EQ(stored->Definition(), Corvane::WriteStyle(expected));

  // Opened again it shows what is stored, and storing nothing changes nothing.
  const auto changes = Changes();
  Edit(stored, [&](User& user) {
    EXPECT_EQ(user.Read("cboFont"), "serif");
    EXPECT_EQ(user.Read("txtName"), "Mine");
    EXPECT_TRUE(user.IsChecked("chkStrikeThrough"));
    EXPECT_TRUE(user.IsChecked("chkBackground"));
    EXPECT_EQ(user.Find<wxColourPickerCtrl>("clrBackground").GetColour(), wxColour("#ddeeff"));
    user.Click("cmdOK");
  });
  EXPECT_EQ(Changes(), changes);
}

TEST_F(StyleEditorTest, WrongNumbersAreRefusedAndMissingFontsShownInALine) {
  Edit(StyleOf("Paper"), [&](User& user) {
    for (const char* size : {"", "3", "201"}) {
      SetText(user, "txtSize", size);
      modal_.ExpectMessage(61963, wxID_OK);
      user.Click("cmdApply");
      EXPECT_TRUE(user.IsEnabled("cmdApply"));
    }
    SetText(user, "txtSize", "12");
    EXPECT_FALSE(user.IsShown("lblFontMissing"));
    SetText(user, "cboFont", kMissing);
    EXPECT_TRUE(user.IsShown("lblFontMissing"));
    EXPECT_EQ(Shown(user), "");
    user.Choose("cboFont", "monospace");
    EXPECT_FALSE(user.IsShown("lblFontMissing"));
    EXPECT_NE(Shown(user), "");
    user.Check("chkBackground", false);
    user.Click("cmdOK");
  });
  const auto stored = StyleOf("Paper")->Format();
  EXPECT_EQ(stored.fontName, "monospace");
  EXPECT_EQ(stored.fontSize, 12);
  EXPECT_EQ(stored.background, "");
}

TEST_F(StyleEditorTest, CancelAsksNothingBackAndConflictsAreMerged) {
  const auto before = StyleOf("Paper")->Definition();
  Edit(StyleOf("Paper"), [&](User& user) {
    user.Check("chkBold");
    user.Click("cmdCancel");
  });
  EXPECT_EQ(StyleOf("Paper")->Definition(), before);

  // Others rename it meanwhile: both changes hold.
  Edit(StyleOf("Paper"), [&](User& user) {
    user.Check("chkBold");
    const auto theirs = StyleOf("Paper");
    theirs->SetName("Parchment");
    theirs->Update();
    user.Click("cmdApply");
    EXPECT_EQ(user.Read("txtName"), "Parchment");
    EXPECT_TRUE(user.IsChecked("chkBold"));
    user.Click("cmdOK");
  });
  EXPECT_TRUE(StyleOf("Parchment")->Format().bold);
  // Both change the look: the user decides.
  Edit(StyleOf("Parchment"), [&](User& user) {
    user.Check("chkItalic");
    const auto theirs = StyleOf("Parchment");
    auto format = theirs->Format();
    format.fontSize = 30;
    theirs->SetFormat(format);
    theirs->Update();
    modal_.ExpectForm("frmConflict", [](User& conflict) { conflict.Click("cmdTheirs"); });
    user.Click("cmdOK");
  });
  EXPECT_EQ(StyleOf("Parchment")->Format().fontSize, 30);
  EXPECT_FALSE(StyleOf("Parchment")->Format().italic);
}

TEST_F(StyleEditorTest, TheListAddsChangesAndRemoves) {
  UseInAlpha(*StyleOf("Slate"));
  OpenStyles([&](User& user) {
    EXPECT_TRUE(user.IsEnabled("cmdRemove"));  // the first is selected
    EXPECT_NE(Shown(user), "");
    modal_.ExpectForm("frmStyleDetail", [](User& sheet) {
      sheet.Type("txtName", "Added");
      sheet.Type("txtSample", "added");
      sheet.Click("cmdOK");
    });
    user.Click("cmdAdd");
    EXPECT_EQ(Shown(user), "added");
    modal_.ExpectForm("frmStyleDetail", [](User& sheet) {
      sheet.Type("txtSample", "!");
      sheet.Click("cmdOK");
    });
    user.Click("cmdProperties");
    modal_.ExpectMessage(61954, wxID_NO);
    user.Click("cmdRemove");
    EXPECT_TRUE(StyleOf("Added"));
    modal_.ExpectMessage(61954, wxID_YES);
    user.Click("cmdRemove");
    EXPECT_FALSE(StyleOf("Added"));
    // One that a domain uses: it is told, and then the domain has none.
    SelectNamed(user, "Slate");
    modal_.ExpectMessage(61955, wxID_NO);
    user.Click("cmdRemove");
    EXPECT_NE(Alpha()->StyleId(), "");
    modal_.ExpectMessage(61955, wxID_YES);
    user.Click("cmdRemove");
    EXPECT_EQ(Alpha()->StyleId(), "");
    // Somebody else is faster.
    SelectNamed(user, "Forest");
    const auto forest = StyleOf("Forest");
    forest->SetName("Wood");
    forest->Update();
    user.Click("cmdClose");
  });
}

TEST_F(StyleEditorTest, TheFormsFitInEveryLanguage) {
  const auto look = [](const char* leave, std::size_t least) {
    return [=](User& user) {
      const auto& form = dynamic_cast<const wxTopLevelWindow&>(user.Form());
      InEveryLanguage([&] { ExpectLooks(form, least); });
      user.Click(leave);
    };
  };
  // Its name, which belongs to the directory, is also a word of the program.
  const auto quotation = StyleOf("Quotation")->Stored();
  Server().Styles()->Delete({quotation.id, quotation.version});
  modal_.ExpectForm("frmStyleSelect", look("CmdCancel", 5));
  frmStyleSelect(nullptr).Display(nullptr, true);
  OpenStyles(look("cmdClose", 8));
  Edit(StyleOf("Notice"), look("cmdCancel", 20));
  auto missing = StyleOf("Paper");
  missing->SetFormat({.fontName = kMissing});
  Edit(missing, look("cmdCancel", 20));
}

TEST_F(StyleEditorTest, WithoutTheRightStylesAreOnlyLookedAt) {
  LogIn("plain");
  OpenStyles([&](User& user) {
    EXPECT_FALSE(user.IsEnabled("cmdAdd"));
    EXPECT_FALSE(user.IsEnabled("cmdRemove"));
    modal_.ExpectForm("frmStyleDetail", [](User& sheet) {
      EXPECT_TRUE(sheet.Find<UseTextBox>("txtName").Locked());
      for (const char* control : {"cboFont", "txtSize", "chkBold", "chkColour", "clrText", "clrBackground",
                                  "cboAlignment", "txtSpaceAfter", "cmdApply"})
        EXPECT_FALSE(sheet.IsEnabled(control)) << control;
      sheet.Click("cmdOK");
    });
    user.Click("cmdProperties");
    user.Click("cmdClose");
  });
}

}  // namespace mindloft::test
