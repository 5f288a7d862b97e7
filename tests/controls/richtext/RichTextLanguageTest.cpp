#include <gtest/gtest.h>

#include "controls/richtext/FormatDialogs.h"
#include "controls/richtext/TXControl.h"
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

}  // namespace
}  // namespace mindloft::test
