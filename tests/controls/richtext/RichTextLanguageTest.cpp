#include <gtest/gtest.h>
#include <wx/clrpicker.h>

#include "backend/tessaline/Services.h"
#include "controls/richtext/EditCommands.h"
#include "controls/richtext/FormatDialogs.h"
#include "controls/richtext/OwnAlignment.h"
#include "controls/richtext/Paragraphs.h"
#include "controls/richtext/TXControl.h"
#include "controls/richtext/TableEditing.h"
#include "controls/richtext/TextBlocks.h"
#include "controls/richtext/frmFindText.h"
#include "tests/controls/richtext/RichTextFixture.h"
#include "tests/support/gui/FormLooks.h"
#include "tests/support/gui/ModalDriver.h"
#include "tests/support/gui/ShownTexts.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {
namespace {

/// The windows of the rich-text editor in every language.
class RichTextLanguageTest : public RichTextFixture {
 protected:
  void SetUp() override {
    RichTextFixture::SetUp();
    control_ = &Show(new TXControl(frame_));
  }
};

TEST_F(RichTextLanguageTest, TheDialogsFit) {
  PutLetters(2, 2);
  ModalDriver modal;
  struct Case {
    const char* form;
    std::size_t least;
    void (*open)(RichEditor& editor);
  };
  for (const auto& each : {Case{"frmRichFont", 9, EditFont}, Case{"frmRichParagraph", 10, EditParagraph},
                           Case{"frmRichStyles", 3, ChooseStyle}, Case{"frmRichTabs", 5, EditTabs},
                           Case{"frmRichList", 9, EditList}, Case{"frmRichTable", 6, EditTable},
                           Case{"frmInsertTable", 5, AskForTable}})
    ExpectLooksOpened(modal, each.form, "cmdCancel", each.least, [&] { each.open(control_->Editor()); });
}

TEST_F(RichTextLanguageTest, TheSearchWindowFollows) {
  for (const bool replaces : {false, true}) {
    if (replaces)
      control_->FindReplace();
    else
      control_->Find();
    Settle();
    wxWindow* window = wxWindow::FindWindowByName("frmFindText");
    ASSERT_TRUE(window);
    InEveryLanguage([&] { ExpectLooks(dynamic_cast<wxTopLevelWindow&>(*window), replaces ? 9 : 6); });
    User(*window).Click("cmdClose");
    Settle();
  }
}

TEST_F(RichTextLanguageTest, TheBarsFollowTheirForm) {
  Type("text");
  InEveryLanguage([&] {
    control_->LoadInfoOnControl();
    Settle();
    ExpectFits(*frame_);
    ExpectTextsOfLanguage(*frame_, 20);
  });
}

class RightToLeftTextTest : public RichTextFixture {
 protected:
  void SetUp() override {
    RichTextFixture::SetUp();
    ASSERT_TRUE(GetResource().SwitchLanguage(1025));
    control_ = &Show(new TXControl(frame_));
  }
  void ExpectAtTheRight(const char* after) {
    control_->Editor().LayoutContent();
    std::size_t paragraphs = 0;
    ForParagraphs(control_->Editor().GetBuffer(),
                  [&](const wxRichTextParagraphLayoutBox& box, const wxRichTextParagraph& paragraph) {
                    ++paragraphs;
                    const int middle = box.GetAbsolutePosition().x + box.GetCachedSize().x / 2;
                    const auto& lines = paragraph.GetLines();
                    ASSERT_FALSE(lines.empty());
                    // Their signs are drawn at the left.
                    const bool isRight = !IsListed(paragraph.GetAttributes());
                    EXPECT_EQ(lines.front()->GetAbsolutePosition().x > middle, isRight)
                        << after << ": " << TextOfParagraph(paragraph).utf8_string();
                  });
    EXPECT_GT(paragraphs, 0U);
  }
};

TEST_F(RightToLeftTextTest, ParagraphsWithoutAnAlignmentAreAtTheRight) {
  Type("a\nb");
  ExpectAtTheRight("typing");
  static_cast<TXControl*>(control_)->SelectAll();
  control_->Clip(kClipCut);
  ExpectAtTheRight("cutting all");
  control_->Clip(kClipPaste);
  ExpectAtTheRight("pasting");
  control_->SetText(wxString::FromUTF8("ج\n\nد"));
  ExpectAtTheRight("setting the text");
  const std::string stored = Stored();
  control_->Content().LoadHtml("<h1>ه</h1><ul><li>و</ul>");
  ExpectAtTheRight("opening a page");
  control_->SetSelStart(2);
  EXPECT_TRUE(CommandOf("align-left").isChecked(*control_)) << "in a list";
  control_->Content().Load(stored);
  ExpectAtTheRight("loading");
  EXPECT_EQ(Stored(), stored);
  control_->Editor().Clear();
  Type("g");
  ExpectAtTheRight("clearing");
  Press('L', wxMOD_CONTROL);
  EXPECT_TRUE(CommandOf("align-left").isChecked(*control_));
  Press('R', wxMOD_CONTROL);
  ExpectAtTheRight("aligning");
  RunCommand(*control_, CommandOf("numbering"));
  ExpectAtTheRight("making a list");
  RunCommand(*control_, CommandOf("numbering"));
  ExpectAtTheRight("ending a list");
  control_->Undo();
  control_->Undo();
  ExpectAtTheRight("taking back");
  control_->Editor().Clear();
  PutLetters(2, 2);
  AppendRow(control_->Editor());
  const auto table = CaretCell(control_->Editor()).table;
  for (int row = 0; row < table->GetRowCount(); ++row) {
    const wxRichTextCell& cell = *table->GetCell(row, 0);
    const auto* paragraph = dynamic_cast<wxRichTextParagraph*>(cell.GetChildren().GetFirst()->GetData());
    EXPECT_EQ(paragraph->GetAttributes().GetAlignment(), wxTEXT_ALIGNMENT_RIGHT) << row;
  }
}

TEST_F(RightToLeftTextTest, WhatReadsFromTheLeftStaysThere) {
  const auto sides = [this] {
    std::string found;
    ForParagraphs(control_->Editor().GetBuffer(), [&](auto&, const wxRichTextParagraph& paragraph) {
      found += paragraph.GetAttributes().GetAlignment() == wxTEXT_ALIGNMENT_RIGHT ? 'R' : 'L';
    });
    return found;
  };
  control_->SetText("English\n\n123");
  EXPECT_EQ(sides(), "LLL");
  const std::string stored = Stored();
  const auto paragraphs = stored.find('>', stored.find("<paragraphlayout"));
  EXPECT_EQ(stored.find("alignment", paragraphs), std::string::npos) << "opened and stored: " << stored;
  control_->SetText(wxString::FromUTF8("عربي\n\nEnglish"));
  EXPECT_EQ(sides(), "RRL");
}

// A mirrored button of the toolkit's shows a thin line of its colour; the system's own are as the form is.
TEST_F(RightToLeftTextTest, ButtonsForColoursAreMirroredBySystemsOnly) {
  ModalDriver modal;
  modal.ExpectForm("frmRichFont", [](User& user) {
    const auto& button = *user.Find<wxColourPickerCtrl>("cpkColour").GetPickerCtrl();
    const wxClassInfo* drawn = wxClassInfo::FindClass("wxGenericColourButton");
    const bool isDrawn = drawn && button.IsKindOf(drawn);
    EXPECT_EQ(button.GetLayoutDirection() == wxLayout_RightToLeft, !isDrawn);
    user.Click("cmdCancel");
  });
  EditFont(control_->Editor());
}

}  // namespace
}  // namespace mindloft::test
