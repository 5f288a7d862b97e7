#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <wx/bookctrl.h>
#include <wx/toolbar.h>

#include <fstream>

#include "backend/corvane/Style.h"
#include "backend/corvane/document/DocumentText.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "controls/richtext/TextControl.h"
#include "editors/domains/frmDomainInfo.h"
#include "platform/ui/FileDialogs.h"
#include "tests/editors/members/MembersFixture.h"
#include "tests/support/gui/FormLooks.h"
#include "tests/support/gui/Keyboard.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

/// The page of a domain's sheet with its formatted description.
class DomainDescriptionTest : public MembersFixture {
 protected:
  static constexpr int kPage = 1;

  std::shared_ptr<Corvane::KDomain> Alpha() { return Server().KDomains()->Item(domainId_)->KDomain(); }
  /// Opens the sheet of the domain with its description in front.
  void Open(const ModalDriver::Script& script) {
    modal_.ExpectForm("frmDomainInfo", [&](User& user) {
      user.SelectPage("sstDomain", kPage);
      Settle();
      script(user);
    });
    frmDomainInfo(nullptr).OpenWindow(Alpha());
  }
  static TextControl& Editor(const User& user) { return user.Find<TextControl>("TxtDesc"); }
  static void SelectAll(const User& user) {
    Editor(user).SetSelStart(0);
    Editor(user).SetSellength(static_cast<long>(Editor(user).Text().length()));
  }
  static void Press(const User& user, int key, int modifiers = 0) {
    SendKey(Editor(user).Editor(), key, modifiers);
    Settle();
  }
  void Store(const std::string& document) {
    const auto domain = Alpha();
    domain->SetDocument(document);
    domain->Update();
  }
  static std::string DocumentOf(const std::string& content) {
    return "<richtext><paragraphlayout><paragraph>" + content + "</paragraph></paragraphlayout></richtext>";
  }
  std::string Stored() { return Alpha()->Stored().document; }

  ModalDriver modal_;
};

TEST_F(DomainDescriptionTest, WrittenAndFormattedItIsStoredAndReopenedUnchanged) {
  const auto domain = Server().KDomains()->Add();
  modal_.ExpectForm("frmDomainInfo", [&](User& user) {
    user.Type("txtName", "Physics");
    user.SelectPage("sstDomain", kPage);
    user.Type("TXTextControl", "What moves\nand ");
    Press(user, 'B', wxMOD_CONTROL);
    user.Type("TXTextControl", "why");
    user.Click("cmdApply");
    Settle();
    EXPECT_FALSE(user.IsEnabled("cmdApply"));
    EXPECT_TRUE(Editor(user).Editor().CanUndo()) << "what was stored can still be taken back";
    user.Type("TXTextControl", "!");
    EXPECT_TRUE(user.IsEnabled("cmdApply"));
    user.Click("cmdOK");
  });
  frmDomainInfo(nullptr).OpenWindow(domain);
  EXPECT_EQ(domain->Description(), "What moves\nand why!");
  EXPECT_THAT(domain->Stored().document, HasSubstr("fontweight=\"700\""));

  domainId_ = domain->Id();
  const auto changes = Changes();
  Open([&](User& user) {
    EXPECT_EQ(Editor(user).Text(), "What moves\nand why!");
    EXPECT_EQ(Editor(user).Content().Save(), domain->Stored().document);
    EXPECT_FALSE(user.IsEnabled("cmdApply"));
    user.Click("cmdOK");
  });
  EXPECT_EQ(Changes(), changes) << "nothing was changed, nothing is stored";
}

TEST_F(DomainDescriptionTest, FormatsAloneAreAChangeAndCancelDropsIt) {
  Store(DocumentOf("<text>\"plain\"</text>"));
  const std::string before = Stored();
  Open([&](User& user) {
    SelectAll(user);
    EXPECT_FALSE(user.IsEnabled("cmdApply"));
    Press(user, 'I', wxMOD_CONTROL);
    EXPECT_TRUE(user.IsEnabled("cmdApply"));
    user.Click("cmdCancel");
  });
  EXPECT_EQ(Stored(), before);
  Open([&](User& user) {
    SelectAll(user);
    Press(user, 'I', wxMOD_CONTROL);
    Press(user, 'Z', wxMOD_CONTROL);
    EXPECT_FALSE(Editor(user).Editor().IsSelectionItalics());
    Press(user, 'Y', wxMOD_CONTROL);
    user.Click("cmdOK");
  });
  EXPECT_THAT(Stored(), HasSubstr("fontstyle=\"93\""));
  EXPECT_EQ(Alpha()->Description(), "plain");
}

TEST_F(DomainDescriptionTest, APlainOneStaysPlainUntilItIsChanged) {
  const auto domain = Alpha();
  domain->SetDescription("<richtext> was\nhere before");
  domain->Update();
  const auto changes = Changes();
  Open([&](User& user) {
    EXPECT_EQ(Editor(user).Text(), "<richtext> was\nhere before");
    user.Click("cmdOK");
  });
  EXPECT_EQ(Changes(), changes);
  Open([&](User& user) {
    user.SelectPage("sstDomain", 0);
    user.Check("chkDisabled");
    user.Click("cmdOK");
  });
  EXPECT_EQ(Stored(), "") << "another field was changed";
  Open([&](User& user) {
    Editor(user).SetSelStart(0);
    user.Type("TXTextControl", "It: ");
    user.Click("cmdOK");
  });
  EXPECT_EQ(Alpha()->Description(), "It: <richtext> was\nhere before");
  EXPECT_EQ(Corvane::PlainTextOf(Stored()), "It: <richtext> was\nhere before");
}

TEST_F(DomainDescriptionTest, TextWithoutFormatsBeginsInTheDomainsStyle) {
  const auto style = Server().Styles()->Add();
  style->SetName("Large");
  style->SetFormat({.fontName = "monospace", .fontSize = 23, .colour = "#102030"});
  style->Update();
  const auto domain = Alpha();
  domain->SetDescription("old text");
  domain->SetStyleId(style->Id());
  domain->Update();
  const auto format = [](const User& user) {
    wxRichTextAttr found;
    Editor(user).Editor().GetStyle(0, found);
    return found;
  };
  Open([&](User& user) {
    EXPECT_EQ(format(user).GetFontSize(), 23);
    EXPECT_EQ(format(user).GetTextColour().GetAsString(wxC2S_HTML_SYNTAX), "#102030");
    user.SelectPage("sstDomain", 0);
    modal_.ExpectForm("frmStyleSelect", [](User& picker) {
      picker.Choose("CmbStyle", "Slate");
      picker.Click("cmdOK");
    });
    user.Click("cmdStyle");
    user.SelectPage("sstDomain", kPage);
    EXPECT_NE(format(user).GetFontSize(), 23) << "what has not been written yet follows the choice";
    user.Click("cmdCancel");
  });
  Open([&](User& user) {
    user.Type("TXTextControl", "x");
    user.Click("cmdOK");
  });
  Server().Styles()->Delete({style->Stored().id, style->Stored().version});
  Open([&](User& user) {
    EXPECT_EQ(format(user).GetFontSize(), 23) << "what was written keeps its look";
    user.Click("cmdCancel");
  });
}

TEST_F(DomainDescriptionTest, ChangesOfOthersAreBroughtTogetherAsOneField) {
  const std::string bold = DocumentOf("<text fontweight=\"700\">\"text\"</text>");
  struct Case {
    const char* typed;
    std::string theirs;
    const char* button;
    const char* noteAt;  ///< "": the two read differently
    const char* expected;
    bool isBold;
  };
  for (const auto& each : {Case{"text", bold, "cmdTheirs", "text [", "text", true},
                           Case{"text", bold, "cmdMine", "text [", "text", false},
                           Case{"mine", bold, "cmdTheirs", "", "text", true},
                           Case{"mine", bold, "cmdMine", "", "mine", false}}) {
    SCOPED_TRACE(std::string(each.typed) + each.button);
    Store(DocumentOf("<text/>"));
    Open([&](User& user) {
      user.Type("TXTextControl", each.typed);
      Store(each.theirs);
      modal_.ExpectForm("frmConflict", [](User& conflict) { conflict.Click("cmdBack"); });
      user.Click("cmdApply");
      EXPECT_EQ(Editor(user).Text(), each.typed);
      EXPECT_TRUE(user.IsEnabled("cmdApply"));
      modal_.ExpectForm("frmConflict", [&](User& conflict) {
        EXPECT_EQ(conflict.Read("txtMine0"), each.typed);
        EXPECT_TRUE(conflict.Read("txtTheirs0").StartsWith(*each.noteAt ? each.noteAt : "text"));
        conflict.Click(each.button);
      });
      user.Click("cmdApply");
      EXPECT_EQ(Editor(user).Text(), each.expected);
      EXPECT_FALSE(user.IsEnabled("cmdApply"));
      user.Click("cmdOK");
    });
    EXPECT_EQ(Alpha()->Description(), each.expected);
    EXPECT_EQ(Stored().find("fontweight=\"700\"") != std::string::npos, each.isBold);
  }
  // Nothing of mine stands against theirs: the page shows it, and it stays as they stored it.
  Open([&](User& user) {
    Store(bold);
    user.SelectPage("sstDomain", 0);
    user.Check("chkDisabled");
    user.Click("cmdApply");
    EXPECT_EQ(Editor(user).Text(), "text");
    user.Click("cmdOK");
  });
  EXPECT_EQ(Stored(), bold);
  EXPECT_TRUE(Alpha()->Disabled());
}

TEST_F(DomainDescriptionTest, WhatDidNotStayOfADocumentIsToldOnceAndNothingIsStored) {
  struct Case {
    std::string stored;
    int message;
    const char* shown;
  };
  const std::string image = "<image imagetype=\"15\"><data>FF</data></image>";
  for (const auto& [stored, message, shown] :
       {Case{DocumentOf("<text url=\"file:///etc/passwd\">\"link\"</text>" + image), 60097, "link"},
        Case{"<richtext><paragraphlayout><paragraph><text>\"cut", 60095, "cut"}}) {
    SCOPED_TRACE(message);
    Store(stored);
    modal_.ExpectForm("frmDomainInfo", [&, message = message, shown = shown](User& user) {
      modal_.ExpectMessage(message, wxID_OK);
      user.SelectPage("sstDomain", kPage);
      Settle();
      modal_.Verify();
      EXPECT_EQ(Editor(user).Text(), shown);
      user.SelectPage("sstDomain", 0);
      user.SelectPage("sstDomain", kPage);
      Settle();
      EXPECT_FALSE(user.IsEnabled("cmdApply"));
      user.Click("cmdOK");
    });
    frmDomainInfo(nullptr).OpenWindow(Alpha());
    EXPECT_EQ(Stored(), stored);
  }
}

TEST_F(DomainDescriptionTest, WithoutTheRightItCanBeReadAndSelected) {
  Store(DocumentOf("<text>\"to be read\"</text>"));
  LogIn("plain");
  Open([&](User& user) {
    EXPECT_EQ(Editor(user).Text(), "to be read");
    EXPECT_THROW(user.Type("TXTextControl", "x"), std::runtime_error);
    EXPECT_FALSE(user.IsEnabled("cmdOpen"));
    for (const char* button : {"cmdSaveAs", "cmdPageSetup", "cmdPreview", "cmdPrint"})
      EXPECT_TRUE(user.IsEnabled(button)) << button;
    Press(user, 'A', wxMOD_CONTROL);
    EXPECT_EQ(Editor(user).SelText(), "to be read");
    Press(user, 'B', wxMOD_CONTROL);
    Press(user, 'x');
    EXPECT_FALSE(user.IsEnabled("cmdApply"));
    user.Click("cmdOK");
  });
}

TEST_F(DomainDescriptionTest, KeysWriteAndLeaveAsExpected) {
  Open([&](User& user) {
    auto& editor = Editor(user).Editor();
    editor.SetFocus();
    WaitFor([&] { return editor.HasFocus(); }, "the focus in the text");
    for (const int key : std::initializer_list<int>{'a', WXK_RETURN, WXK_TAB, 'b'}) Press(user, key);
    EXPECT_EQ(Editor(user).Text(), "a\n\tb");
    EXPECT_TRUE(editor.HasFocus());
    Press(user, WXK_TAB, wxMOD_RAW_CONTROL);
    WaitFor([&] { return user.Find("cmdOpen").HasFocus(); }, "the focus behind the text");
    editor.SetFocus();
    Press(user, WXK_TAB, wxMOD_RAW_CONTROL | wxMOD_SHIFT);
    WaitFor([&] { return !editor.HasFocus(); }, "the focus before the text");
    EXPECT_EQ(Editor(user).Text(), "a\n\tb");
    editor.SetFocus();
    modal_.ExpectMessage(61600, wxID_YES);
    Press(user, WXK_ESCAPE);
  });
  EXPECT_EQ(Alpha()->Description(), "");
}

TEST_F(DomainDescriptionTest, TheBarsFollowTheLanguageAndTheTextStays) {
  Open([&](User& user) {
    user.Type("TXTextControl", "stays");
    auto& bar = user.Find<wxToolBar>("tbr-bold");
    InEveryLanguage([&] {
      EXPECT_EQ(bar.GetToolShortHelp(bar.GetToolByPos(0)->GetId()), GetResource().GetString(62014));
      EXPECT_TRUE(user.Read("lblColumn").StartsWith(GetResource().GetString(62052).BeforeFirst('%')));
      EXPECT_EQ(Editor(user).Text(), "stays");
    });
    EXPECT_TRUE(user.IsEnabled("cmdApply"));
    user.Click("cmdOK");
  });
  EXPECT_EQ(Alpha()->Description(), "stays");
}

TEST_F(DomainDescriptionTest, FilesAreTakenAndWritten) {
  const auto file = folder_.Path() / "taken.html";
  const auto write = [&](const std::string& content) { std::ofstream(file, std::ios::binary) << content; };
  wxString proposed;
  const platform::FakeFileDialogs dialogs([&](const platform::FileDialogRequest& request) {
    proposed = request.defaultName;
    return ToWx(file.string());
  });
  Open([&](User& user) {
    write("<h1>Head</h1><p>text</p>");
    user.Click("cmdOpen");
    EXPECT_EQ(Editor(user).Text(), "Head\ntext");
    EXPECT_TRUE(user.IsEnabled("cmdApply"));
    write("<p>other</p>");
    modal_.ExpectMessage(62128, wxID_NO);
    user.Click("cmdOpen");
    write("broken \xFF");
    modal_.ExpectMessage(62129, wxID_OK);
    user.Click("cmdOpen");
    EXPECT_EQ(Editor(user).Text(), "Head\ntext");
    user.Click("cmdSaveAs");
    user.Click("cmdOK");
  });
  EXPECT_EQ(proposed, "Alpha.html");
  std::ifstream saved(file, std::ios::binary);
  const std::string html{std::istreambuf_iterator<char>(saved), {}};
  EXPECT_THAT(html, AllOf(HasSubstr("<h1"), HasSubstr("Head"), Not(HasSubstr("\xFF"))));
  EXPECT_EQ(Alpha()->Description(), "Head\ntext");
}

}  // namespace mindloft::test
