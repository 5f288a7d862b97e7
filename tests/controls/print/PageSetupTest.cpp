#include <gmock/gmock.h>
#include <wx/choice.h>
#include <wx/textctrl.h>

#include "controls/numbers/ucMaskedNumber.h"
#include "controls/print/PagePicture.h"
#include "controls/print/UserPrintSetup.h"
#include "core/Refresh.h"
#include "tests/controls/print/PrintFixture.h"
#include "tests/support/gui/FormLooks.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

class PageSetupTest : public PrintFixture {};

wxTextCtrl& Box(User& user, const char* name) {
  for (wxWindow* child : user.Find<wxWindow>(name).GetChildren()) {
    if (auto* box = dynamic_cast<wxTextCtrl*>(child)) return *box;
  }
  throw std::runtime_error(std::string(name) + " has no box");
}

/// Types a number in the place of what stands in a box.
void Enter(User& user, const char* name, const char* number) {
  wxTextCtrl& box = Box(user, name);
  box.SetFocus();
  WaitFor([&] { return box.HasFocus(); }, "the focus in the box");
  Settle();
  user.Clear(name);
  box.SelectAll();
  user.Type(name, number);
}

void Leave(User& user, const char* name) {
  wxTextCtrl& box = Box(user, name);
  // The toolkit calls a window focused that only will be: the event tells when the box is left.
  bool isLeft = false;
  const auto left = [&isLeft](wxFocusEvent& event) {
    isLeft = true;
    event.Skip();
  };
  box.Bind(wxEVT_KILL_FOCUS, left);
  // A window that never came to its focus cannot lose it: then both are asked for once more.
  const auto leaves = [&] {
    if (!isLeft) box.SetFocus();
    Settle();
    user.Find<wxWindow>("cmdOK").SetFocus();
    Settle();
    return isLeft;
  };
  WaitFor(leaves, "the focus to leave the box");
  Settle();
  box.Unbind(wxEVT_KILL_FOCUS, left);
}

std::string Hint(User& user) {
  wxString hint = user.Read("lblHint");
  hint.Replace("\n", " ");
  return hint.utf8_string();
}

TEST_F(PageSetupTest, GivesBackWhatItWasGivenWithThePrintersWords) {
  PageSettings settings;
  settings.leftMargin = 155;
  EXPECT_TRUE(Show(settings, [](User& user) {
    EXPECT_EQ(user.Read("cboPrinter"), "Office");
    EXPECT_EQ(user.Read("cboPaper"), "A4") << "the given size before the printer's current paper";
    EXPECT_EQ(user.Read("txtPaperWidth"), "210.0");
    EXPECT_EQ(user.Read("txtLeftMargin"), "15.5");
    EXPECT_THAT(user.Read("lblArea").utf8_string(), HasSubstr("174.5 \xC3\x97 257.0"));
    EXPECT_THAT(Hint(user), IsEmpty());
    user.Click("cmdOK");
  }));
  settings.printerName = "Office";
  settings.papersName = "A4";
  EXPECT_EQ(chosen_, settings);

  EXPECT_FALSE(Show(settings, [](User& user) {
    user.Choose("cboPaper", "A5");
    Enter(user, "txtTopMargin", "33");
    user.Click("CmdCancel");
  }));
  EXPECT_EQ(chosen_, settings);
}

TEST_F(PageSetupTest, PapersGiveSizesAndBoundsAndSizesFindTheirPaper) {
  EXPECT_TRUE(Show({}, [](User& user) {
    auto& width = user.Find<ucMaskedNumber>("txtPaperWidth");
    EXPECT_EQ(width.MinValue(), 1480);
    EXPECT_EQ(width.MaxValue(), 2970);
    EXPECT_EQ(user.Find<ucMaskedNumber>("txtTopMargin").MaxValue(), 2970);
    EXPECT_EQ(user.Find<ucMaskedNumber>("txtTopMargin").MinValue(), 0);
    auto& papers = user.Find<wxChoice>("cboPaper");
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(papers.GetClientData(1)), 11U);

    user.Choose("cboPaper", "A5");
    EXPECT_EQ(user.Read("txtPaperWidth"), "148.0");
    EXPECT_EQ(user.Read("txtPaperHeight"), "210.0");
    Enter(user, "txtPaperWidth", "215.9");
    EXPECT_EQ(user.Read("cboPaper"), "A5") << "while it is typed";
    Leave(user, "txtPaperWidth");
    EXPECT_EQ(user.Read("cboPaper"), "");
    EXPECT_THAT(Hint(user), HasSubstr("None of the printer's papers"));
    Enter(user, "txtPaperHeight", "279.4");
    Leave(user, "txtPaperHeight");
    EXPECT_EQ(user.Read("cboPaper"), "Letter");
    // Out of the bounds.
    Enter(user, "txtPaperHeight", "300");
    Leave(user, "txtPaperHeight");
    EXPECT_EQ(user.Read("txtPaperHeight"), "297.0");
    Enter(user, "txtPaperWidth", "1");
    Leave(user, "txtPaperWidth");
    EXPECT_EQ(user.Read("txtPaperWidth"), "148.0");
    user.Click("cmdOK");
  }));
  EXPECT_EQ(chosen_.papersName, "");
  EXPECT_EQ(chosen_.paperHeight, 2970);
}

TEST_F(PageSetupTest, MarginsLargerThanThePaperAreRefused) {
  struct Case {
    const char* margin;
    const char* tooLarge;
    const char* other;
  };
  for (const Case& each :
       {Case{"txtRightMargin", "190.1", "190.0"}, Case{"txtBottomMargin", "277.1", "277.0"}}) {
    EXPECT_TRUE(Show({}, [&](User& user) {
      Enter(user, each.margin, each.tooLarge);
      user.Click("cmdOK");
      EXPECT_TRUE(user.Form().IsShown());
      EXPECT_THAT(Hint(user), HasSubstr("margins do not fit"));
      wxTextCtrl& left = Box(user, "txtLeftMargin");
      WaitFor([&] { return left.HasFocus(); }, "the focus in the left margin");
      EXPECT_EQ(left.GetStringSelection(), "20.0");
      EXPECT_TRUE(user.Find<PagePicture>("picPage").Drawn().printed.IsEmpty());
      Enter(user, each.margin, each.other);
      EXPECT_THAT(Hint(user), IsEmpty());
      user.Click("cmdOK");
    }));
  }
  // As it stands, whatever the bounds say: 200 is less than any paper of the printer.
  PageSettings settings;
  settings.paperWidth = 200;
  settings.leftMargin = 100;
  settings.rightMargin = 150;
  EXPECT_FALSE(Show(settings, [](User& user) {
    user.Click("cmdOK");
    WaitFor([&] { return Box(user, "txtLeftMargin").HasFocus(); }, "the focus in the left margin");
    EXPECT_EQ(Box(user, "txtLeftMargin").GetStringSelection(), "10.0");
    user.Click("CmdCancel");
  }));
}

TEST_F(PageSetupTest, ASizeThatOkBringsIntoTheBoundsIsSeenBeforeItCounts) {
  PageSettings settings;
  settings.paperHeight = 4200;
  EXPECT_TRUE(Show(settings, [](User& user) {
    EXPECT_EQ(user.Read("txtPaperHeight"), "420.0");
    user.Press(WXK_RETURN);
    EXPECT_TRUE(user.Form().IsShown());
    EXPECT_EQ(user.Read("txtPaperHeight"), "297.0");
    EXPECT_EQ(user.Read("cboPaper"), "A4");
    EXPECT_THAT(Hint(user), HasSubstr("was changed"));
    user.Click("cmdOK");
  }));
  EXPECT_EQ(chosen_.paperHeight, 2970);
}

TEST_F(PageSetupTest, ATurnedPageHasItsSidesExchanged) {
  EXPECT_TRUE(Show({}, [](User& user) {
    user.Click("OptLandscape");
    EXPECT_EQ(user.Read("txtPaperWidth"), "297.0");
    EXPECT_EQ(user.Read("txtPaperHeight"), "210.0");
    EXPECT_EQ(user.Read("cboPaper"), "A4");
    const wxRect page = user.Find<PagePicture>("picPage").Drawn().page;
    EXPECT_GT(page.width, page.height);
    user.Click("OptLandscape");
    EXPECT_EQ(user.Read("txtPaperWidth"), "297.0");
    user.Choose("cboPaper", "A5");
    EXPECT_EQ(user.Read("txtPaperWidth"), "210.0");
    user.Click("OptPortrait");
    EXPECT_EQ(user.Read("txtPaperWidth"), "148.0");
    user.Click("OptLandscape");
    user.Click("cmdOK");
  }));
  EXPECT_EQ(chosen_.orientation, PageOrientation::Landscape);
  EXPECT_EQ(SheetSize(chosen_), wxSize(1480, 2100));
  // What is given is not turned, and a paper that was given unturned is known.
  PageSettings given;
  given.orientation = PageOrientation::Landscape;
  EXPECT_TRUE(Show(given, [](User& user) { user.Click("cmdOK"); }));
  EXPECT_EQ(chosen_.paperWidth, 2100);
  EXPECT_EQ(chosen_.papersName, "A4");
}

TEST_F(PageSetupTest, AnotherPrinterBringsItsCurrentPaperOneWithoutPapersLeavesAllAsItIs) {
  EXPECT_TRUE(Show({}, [](User& user) {
    user.Choose("cboPrinter", "Labels");
    EXPECT_EQ(user.Read("cboPaper"), "Label");
    EXPECT_EQ(user.Read("txtPaperHeight"), "150.0");
    auto& height = user.Find<ucMaskedNumber>("txtPaperHeight");
    EXPECT_EQ(height.MaxValue(), 1500);
    user.Choose("cboPrinter", "Mute");
    EXPECT_EQ(user.Find<wxChoice>("cboPaper").GetCount(), 0U);
    EXPECT_EQ(height.MaxValue(), 1500);
    EXPECT_EQ(height.MinValue(), 1000);
    EXPECT_EQ(user.Read("txtPaperHeight"), "150.0");
    EXPECT_THAT(Hint(user), HasSubstr("does not say which papers"));
    user.Choose("cboPrinter", "Office");
    EXPECT_EQ(user.Read("cboPaper"), "Letter");
    user.Click("cmdOK");
  }));
  EXPECT_EQ(chosen_.printerName, "Office");
  EXPECT_EQ(chosen_.paperWidth, 2159);
}

TEST_F(PageSetupTest, APrinterThatGoesWhileTheDialogIsOpenIsSaid) {
  EXPECT_TRUE(Show({}, [this](User& user) {
    printers_->Remove("Labels");
    user.Choose("cboPrinter", "Labels");
    EXPECT_THAT(Hint(user), HasSubstr("\"Labels\" is not there"));
    EXPECT_EQ(user.Find<wxChoice>("cboPaper").GetCount(), 0U);
    EXPECT_EQ(user.Find<ucMaskedNumber>("txtPaperWidth").MaxValue(), 2970);
    user.Click("cmdOK");
  }));
  // One that is gone at the next time keeps its name until another one is chosen.
  EXPECT_TRUE(Show(chosen_, [](User& user) {
    EXPECT_EQ(user.Read("cboPrinter"), "");
    EXPECT_THAT(Hint(user), HasSubstr("\"Labels\" is not there"));
    Enter(user, "txtLeftMargin", "25");
    user.Click("cmdOK");
  }));
  EXPECT_EQ(chosen_.printerName, "Labels");
  EXPECT_EQ(chosen_.leftMargin, 250);
}

TEST_F(PageSetupTest, WithoutAnyPrinterThePageIsSetUpAllTheSame) {
  for (const char* name : {"Office", "Labels", "Mute"}) printers_->Remove(name);
  EXPECT_TRUE(Show({}, [](User& user) {
    EXPECT_THAT(Hint(user), HasSubstr("no printer"));
    Enter(user, "txtPaperWidth", "100");
    Enter(user, "txtPaperHeight", "577.9");
    user.Click("OptLandscape");
    user.Click("cmdOK");
  }));
  EXPECT_EQ(chosen_.paperWidth, 5779);
  EXPECT_EQ(chosen_.paperHeight, 1000);
}

TEST_F(PageSetupTest, SlowPrintersDoNotKeepTheWindowFromItsUser) {
  printers_->Hold();
  EXPECT_TRUE(Show({}, [this](User& user) {
    EXPECT_THAT(Hint(user), HasSubstr("Asking for the printers"));
    Enter(user, "txtTopMargin", "12.3");
    printers_->Release();
    WaitFor([&] { return user.Read("cboPaper") == "A4"; }, "the papers");
    EXPECT_EQ(user.Read("txtTopMargin"), "12.3");
    printers_->Hold();
    user.Choose("cboPrinter", "Labels");
    EXPECT_THAT(Hint(user), HasSubstr("Asking the printer for its papers"));
    // Of two that are chosen quickly the answer of the last counts.
    user.Choose("cboPrinter", "Office");
    printers_->Release();
    WaitFor([&] { return user.Read("cboPaper") == "Letter"; }, "the papers");
    EXPECT_THAT(Hint(user), IsEmpty());
    printers_->Hold();
    user.Choose("cboPrinter", "Labels");
    Enter(user, "txtPaperWidth", "200");
    user.Click("cmdOK");
  }));
  EXPECT_EQ(chosen_.paperWidth, 2000);
  EXPECT_EQ(chosen_.printerName, "Labels");
}

TEST_F(PageSetupTest, FollowsTheLanguageAndKeepsWhatIsEntered) {
  for (const int language : {1033, 2052, 1025}) {
    ASSERT_TRUE(GetResource().SwitchLanguage(1033));
    EXPECT_TRUE(Show({}, [&](User& user) {
      Enter(user, "txtTopMargin", "12.3");
      ASSERT_TRUE(GetResource().SwitchLanguage(language));
      GetRefresh()->NotifyLanguage();
      Settle();
      EXPECT_EQ(user.Title(), *GetResource().Language().Title("frmPageSetup"));
      EXPECT_EQ(user.Read("lblPrinter"), GetResource().CaptionOf("UserPrintSetup", "lblPrinter")->text);
      EXPECT_EQ(user.Read("txtTopMargin"), "12.3");
      EXPECT_TRUE(user.Find<UserPrintSetup>("PrintSetup")
                      .GetClientRect()
                      .Contains(user.Find<wxWindow>("lblHint").GetRect()));
      user.Click("cmdOK");
    }));
    EXPECT_EQ(chosen_.topMargin, 123);
  }
}

TEST_F(PageSetupTest, FitsInEveryLanguage) {
  PageSettings settings;
  // The margins do not fit: the longest hint is told too.
  settings.leftMargin = 1500;
  settings.rightMargin = 1500;
  EXPECT_FALSE(Show(settings, [](User& user) {
    const auto& form = dynamic_cast<const wxTopLevelWindow&>(user.Form());
    InEveryLanguage([&] { ExpectLooks(form, 15); });
    user.Click("CmdCancel");
  }));
}

}  // namespace
}  // namespace mindloft::test
