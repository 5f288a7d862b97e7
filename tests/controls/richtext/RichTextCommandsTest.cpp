#include <gmock/gmock.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/clipbrd.h>
#include <wx/clrpicker.h>
#include <wx/listbox.h>
#include <wx/spinctrl.h>
#include <wx/toolbar.h>

#include "controls/FontFaces.h"
#include "controls/richtext/BufferXml.h"
#include "controls/richtext/EditCommands.h"
#include "controls/richtext/EditFormat.h"
#include "controls/richtext/TXControl.h"
#include "controls/richtext/TableEditing.h"
#include "tests/controls/richtext/RichTextFixture.h"
#include "tests/support/gui/ModalDriver.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

class RichTextCommandsTest : public RichTextFixture {
 protected:
  void SetUp() override {
    RichTextFixture::SetUp();
    control_ = &Show(new TXControl(frame_));
  }
  /// Three lines; the second one's word is selected.
  void PutLines() {
    control_->SetText("one\ntwo\nthree");
    control_->SetSelStart(4);
    control_->SetSellength(3);
  }
  template <typename Control>
  static Control& In(User& user, const char* name) {
    return user.Find<Control>(name);
  }
};

TEST_F(RichTextCommandsTest, KeysFormatTheSelectionAndCanBeTakenBack) {
  const std::tuple<int, int, const char*> keys[] = {
      {'B', wxMOD_CONTROL, "fontweight=\"700\""},   {'I', wxMOD_CONTROL, "fontstyle=\"93\""},
      {'U', wxMOD_CONTROL, "fontunderlined=\"1\""}, {'E', wxMOD_CONTROL, "alignment=\"2\""},
      {'R', wxMOD_CONTROL, "alignment=\"3\""},      {'J', wxMOD_CONTROL, "alignment=\"4\""},
      {'M', wxMOD_CONTROL, "leftindent=\"100\""},
  };
  for (const auto& [key, modifiers, format] : keys) {
    PutLines();
    const std::string before = Stored();
    EXPECT_THAT(before, Not(HasSubstr(format)));
    Press(key, modifiers);
    EXPECT_THAT(Stored(), HasSubstr(format)) << static_cast<char>(key);
    ExpectUndoable(before);
  }
  EXPECT_THAT(Stored(), Not(HasSubstr("fontweight=\"700\"")));
}

TEST_F(RichTextCommandsTest, FormatsWithoutASelectionHoldForWhatIsTypedNext) {
  Press('B', wxMOD_CONTROL);
  Type("bold");
  Press('B', wxMOD_CONTROL);
  Type("plain");
  EXPECT_THAT(Stored(), AllOf(HasSubstr("fontweight=\"700\">\"bold\""), HasSubstr("\"plain\"")));
}

TEST_F(RichTextCommandsTest, ListsCountTheirParagraphs) {
  for (const char* command : {"numbering", "bullets"}) {
    control_->SetText("one\ntwo\nthree");
    const std::string before = Stored();
    static_cast<TXControl*>(control_)->SelectAll();
    RunCommand(*control_, CommandOf(command));
    if (std::string(command) == "numbering")
      EXPECT_THAT(Stored(), AllOf(HasSubstr("bulletnumber=\"1\""), HasSubstr("bulletnumber=\"2\""),
                                  HasSubstr("bulletnumber=\"3\"")));
    else
      EXPECT_THAT(Stored(), HasSubstr("bulletname=\"standard/circle\""));
    ExpectUndoable(before);
    EXPECT_TRUE(CommandOf(command).isChecked(*control_));
    control_->SetSelStart(1);
    RunCommand(*control_, CommandOf(command));
    EXPECT_FALSE(CommandOf(command).isChecked(*control_));
  }
}

TEST_F(RichTextCommandsTest, FontDialogShowsAndSetsTheCharacters) {
  PutLines();
  const std::string before = Stored();
  ModalDriver modal;
  modal.ExpectForm("frmRichFont", [](User& user) {
    In<wxSpinCtrl>(user, "spnSize").SetValue(20);
    In<wxColourPickerCtrl>(user, "cpkColour").SetColour(wxColour(1, 2, 3));
    user.Check("chkBold");
    user.Check("chkStrike");
    user.Click("cmdOK");
  });
  Press('D', wxMOD_CONTROL);
  EXPECT_THAT(Stored(), AllOf(HasSubstr("fontpointsize=\"20\""), HasSubstr("textcolor=\"#010203\""),
                              HasSubstr("fontweight=\"700\""), HasSubstr("texteffects=\"4\"")));
  ExpectUndoable(before);
  control_->SetSelStart(5);
  const std::string changed = Stored();
  modal.ExpectForm("frmRichFont", [](User& user) {
    EXPECT_EQ(In<wxSpinCtrl>(user, "spnSize").GetValue(), 20);
    EXPECT_EQ(In<wxColourPickerCtrl>(user, "cpkColour").GetColour(), wxColour(1, 2, 3));
    EXPECT_TRUE(user.IsChecked("chkBold"));
    EXPECT_FALSE(user.IsChecked("chkItalic"));
    user.Check("chkItalic");
    user.Click("cmdCancel");
  });
  control_->FontDialog();
  EXPECT_EQ(Stored(), changed);
}

TEST_F(RichTextCommandsTest, AFontThatIsNotInstalledIsShownByItsName) {
  constexpr const char* kMissing = "No Such Face";
  control_->SetText("known missing other");
  const auto face = [&] { return user_->Read("cboFace").utf8_string(); };
  const std::string known = face();
  EXPECT_NE(known, "");
  // The windows' own font may be a name that only the system knows.
  const auto more = [&] { return In<wxChoice>(*user_, "cboFace").GetCount() - InstalledFaces().size(); };
  const auto first = more();
  for (const auto& [start, name] : {std::pair{6, kMissing}, {14, "Another One"}}) {
    wxRichTextAttr format;
    format.SetFontFaceName(name);
    control_->SetSelStart(start);
    control_->SetSellength(5);
    ApplyToCharacters(control_->Editor(), format);
  }
  for (const int again : {0, 1}) {
    control_->SetSelStart(8);
    Settle();
    EXPECT_EQ(face(), kMissing) << again;
    control_->SetSelStart(16);
    Settle();
    EXPECT_EQ(face(), "Another One") << again;
    EXPECT_EQ(more(), 1u);
    control_->SetSelStart(2);
    Settle();
    EXPECT_EQ(face(), known) << again;
    EXPECT_EQ(more(), first);
  }
  control_->SetSelStart(6);
  control_->SetSellength(7);
  ModalDriver modal;
  modal.ExpectForm("frmRichFont", [&](User& user) {
    EXPECT_EQ(user.Read("cboFace"), kMissing);
    user.Check("chkBold");
    user.Click("cmdOK");
  });
  control_->FontDialog();
  EXPECT_THAT(Stored(), HasSubstr("fontweight=\"700\" fontface=\"No Such Face\""));
}

TEST_F(RichTextCommandsTest, ParagraphDialogShowsAndSetsTheParagraphs) {
  PutLines();
  const std::string before = Stored();
  ModalDriver modal;
  modal.ExpectForm("frmRichParagraph", [](User& user) {
    EXPECT_EQ(user.Read("cboAlignment"), "Align left");
    user.Choose("cboAlignment", "Justify");
    user.Choose("cboSpacing", "Double");
    In<wxSpinCtrlDouble>(user, "spnLeft").SetValue(20);
    In<wxSpinCtrlDouble>(user, "spnFirst").SetValue(-5.5);
    In<wxSpinCtrlDouble>(user, "spnAfter").SetValue(2.5);
    user.Click("cmdOK");
  });
  control_->ParagraphDialog();
  EXPECT_THAT(Stored(), AllOf(HasSubstr("alignment=\"4\""), HasSubstr("linespacing=\"20\""),
                              HasSubstr("leftindent=\"145\""), HasSubstr("leftsubindent=\"55\""),
                              HasSubstr("parspacingafter=\"25\"")));
  ExpectUndoable(before);
  modal.ExpectForm("frmRichParagraph", [](User& user) {
    EXPECT_EQ(user.Read("cboAlignment"), "Justify");
    EXPECT_NEAR(In<wxSpinCtrlDouble>(user, "spnLeft").GetValue(), 20, 0.01);
    EXPECT_NEAR(In<wxSpinCtrlDouble>(user, "spnFirst").GetValue(), -5.5, 0.01);
    user.Press(WXK_ESCAPE);
  });
  control_->ParagraphDialog();
}

TEST_F(RichTextCommandsTest, StylesTabsAndListsHaveTheirDialogs) {
  PutLines();
  const std::string plain = Stored();
  ModalDriver modal;
  modal.ExpectForm("frmRichStyles", [](User& user) {
    EXPECT_EQ(In<wxListBox>(user, "lstStyles").GetStringSelection(), "Normal");
    user.Choose("lstStyles", "Heading 2");
    user.Click("cmdOK");
  });
  control_->StytlesDialog();
  EXPECT_THAT(Stored(), AllOf(HasSubstr("parstyle=\"Heading 2\""), HasSubstr("fontweight=\"700\"")));
  EXPECT_EQ(user_->Read("cboStyle"), "Heading 2");
  ExpectUndoable(plain);

  const std::string styled = Stored();
  modal.ExpectForm("frmRichTabs", [](User& user) {
    for (const double place : {50.0, 25.5, 50.0, 80.0}) {
      In<wxSpinCtrlDouble>(user, "spnPlace").SetValue(place);
      user.Click("cmdAdd");
    }
    user.Choose("lstStops", In<wxListBox>(user, "lstStops").GetString(2));
    user.Click("cmdRemove");
    user.Click("cmdOK");
  });
  control_->TabsDialog();
  EXPECT_THAT(Stored(), HasSubstr("tabs=\"255,500\""));
  ExpectUndoable(styled);

  const std::string tabbed = Stored();
  modal.ExpectForm("frmRichList", [](User& user) {
    EXPECT_FALSE(user.IsEnabled("spnStart"));
    user.Choose("cboKind", "Roman numbers (I, II, III)");
    In<wxSpinCtrl>(user, "spnStart").SetValue(4);
    user.Click("cmdOK");
  });
  control_->ListAttribute();
  EXPECT_THAT(Stored(), AllOf(HasSubstr("bulletstyle=\"264\""), HasSubstr("bulletnumber=\"4\"")));
  ExpectUndoable(tabbed);
}

TEST_F(RichTextCommandsTest, TablesAreMadeAndChanged) {
  Type("before");
  EXPECT_FALSE(control_->CanModifyTable());
  const std::string plain = Stored();
  control_->InsertRow();
  control_->DeleteColumn();
  control_->TableProperties();
  EXPECT_EQ(Stored(), plain) << "outside a table";
  ModalDriver modal;
  modal.ExpectForm("frmInsertTable", [](User& user) {
    In<wxSpinCtrl>(user, "spnRows").SetValue(2);
    In<wxSpinCtrl>(user, "spnColumns").SetValue(4);
    user.Click("cmdOK");
  });
  control_->NewTable();
  EXPECT_TRUE(control_->CanModifyTable());
  EXPECT_EQ(Cells(), "....|....");
  ExpectUndoable(plain);
}

TEST_F(RichTextCommandsTest, RowsAndColumnsComeAndGo) {
  const std::pair<const char*, std::string> commands[] = {
      {"row-insert", "ab|..|cd"},
      {"column-insert", "a.b|c.d"},
      {"row-delete", "ab"},
      {"column-delete", "a|c"},
  };
  for (const auto& [command, expected] : commands) {
    control_->SetText("x");
    PutLetters(2, 2);
    RichEditor& editor = control_->Editor();
    editor.SetFocusObject(CaretCell(editor).table->GetCell(1, 1));
    Settle();
    const std::string before = Stored();
    RunCommand(*control_, CommandOf(command));
    EXPECT_EQ(Cells(), expected);
    ExpectUndoable(before);
    // Keys go on in the main text after the cell is gone.
    Type("y");
    Events();
  }
}

TEST_F(RichTextCommandsTest, NewTablesFillTheWidthEvenlyAndStayApartFromTheText) {
  const auto widths = [&] {
    const TableCell place = CaretCell(control_->Editor());
    std::vector<int> each;
    for (int column = 0; place.table && column < place.table->GetColumnCount(); ++column)
      each.push_back(place.table->GetCell(0, column)->GetCachedSize().x);
    return each;
  };
  const auto expectFilled = [&](const char* when, std::size_t columns, int room) {
    const std::vector<int> each = widths();
    ASSERT_EQ(each.size(), columns) << when;
    const int share = room / static_cast<int>(columns);
    for (const int width : each) EXPECT_NEAR(width, share, 3) << when;
  };
  RichEditor& editor = control_->Editor();
  constexpr int kMargins = 10;
  const int room = editor.GetClientSize().x - kMargins;
  control_->SetText("two words");
  control_->SetSelStart(4);
  const std::string before = Stored();
  PutLetters(2, 3);
  EXPECT_EQ(Text().substr(0, 5), "two \n");
  Type("a text that asks for room");
  expectFilled("with text", 3, room);
  control_->InsertColumn();
  expectFilled("with a column more", 4, room);
  control_->DeleteColumn();
  control_->DeleteColumn();
  expectFilled("with a column less", 2, room);
  const std::string stored = Stored();
  control_->Content().Load(stored);
  EXPECT_EQ(Stored(), stored);
  control_->SetSelStart(4);
  Press(WXK_RIGHT);
  expectFilled("after loading", 2, room);
  PageSettings page;
  page.paperWidth = 1000;
  control_->SetPage(page);
  control_->SetViewMode(kPageView);
  EXPECT_LT(widths().front(), room / 3) << "the page is narrower than the window";
  control_->Content().Load(before);
  control_->SetSelStart(4);
  PutTable(editor, 1, 1);
  ExpectUndoable(before);
}

TEST_F(RichTextCommandsTest, RowsLookLikeTheOneBesideThemColumnByColumn) {
  const auto cell = [](const char* width) {
    return std::string("<cell width=\"") + width + ",4100\"><paragraph><text>a</text></paragraph></cell>";
  };
  control_->Content().Load(
      "<richtext version=\"1.0.0.0\" xmlns=\"http://www.wxwidgets.org\"><paragraphlayout><paragraph>"
      "<table rows=\"1\" cols=\"2\">" +
      cell("20") + cell("70") + "</table></paragraph></paragraphlayout></richtext>");
  const std::string loaded = Stored();
  Press(WXK_RIGHT);
  control_->InsertRow();
  EXPECT_EQ(Cells(), "..|aa");
  const std::string stored = Stored();
  const auto first = stored.find("width=\"20,4100\"");
  ASSERT_NE(first, std::string::npos);
  EXPECT_LT(stored.find("width=\"70,4100\""), stored.rfind("width=\"20,4100\""));
  EXPECT_NE(stored.rfind("width=\"20,4100\""), first);
  control_->Undo();
  EXPECT_EQ(Stored(), loaded) << "widths that are not even stay";
}

TEST_F(RichTextCommandsTest, TheLastRowAndColumnStay) {
  PutLetters(1, 1);
  control_->DeleteRow();
  control_->DeleteColumn();
  EXPECT_EQ(Cells(), "a");
  control_->SetLocked(true);
  EXPECT_FALSE(control_->CanModifyTable());
}

TEST_F(RichTextCommandsTest, TheCaretNeverStaysInACellThatIsGone) {
  const std::string empty = Stored();
  for (const int way : {0, 1, 2, 3, 4}) {
    control_->SetText("text");
    PutLetters(3, 3);
    if (way == 0) control_->SetText("new");
    if (way == 1) control_->Content().Load(empty);
    if (way == 2) control_->Editor().Clear();
    if (way == 3) {
      for (int i = 0; i < 40 && control_->Editor().CanUndo(); ++i) control_->Undo();
    }
    if (way == 4) {
      static_cast<TXControl*>(control_)->SelectAll();
      control_->Clip(kClipDelete);
    }
    Settle();
    EXPECT_FALSE(control_->CanModifyTable()) << way;
    Type("x");
    Press(WXK_BACK);
    control_->SetText("again");
    EXPECT_EQ(Text(), "again");
  }
}

TEST_F(RichTextCommandsTest, TablePropertiesSetWidthBordersAndSpace) {
  PutLetters(2, 2);
  const std::string before = Stored();
  ModalDriver modal;
  modal.ExpectForm("frmRichTable", [](User& user) {
    EXPECT_EQ(In<wxSpinCtrl>(user, "spnWidth").GetValue(), 100);
    EXPECT_TRUE(user.IsChecked("chkBorder"));
    In<wxSpinCtrl>(user, "spnWidth").SetValue(40);
    In<wxSpinCtrlDouble>(user, "spnPadding").SetValue(3.5);
    user.Check("chkBorder", false);
    user.Click("cmdOK");
  });
  control_->TableProperties();
  EXPECT_THAT(Stored(), AllOf(HasSubstr("width=\"40,"), HasSubstr("padding-left=\"35,"),
                              HasSubstr("border-left-style=\"0\"")));
  ExpectUndoable(before);
}

TEST_F(RichTextCommandsTest, ClipMovesTextWithItsFormats) {
  PutLines();
  Press('B', wxMOD_CONTROL);
  control_->Clip(kClipCopy);
  control_->SetSelStart(0);
  control_->Clip(kClipPaste);
  EXPECT_EQ(Text(), "twoone\ntwo\nthree");
  EXPECT_THAT(Stored(), HasSubstr("fontweight=\"700\">\"two\""));
  control_->SetSelStart(0);
  control_->SetSellength(3);
  control_->Clip(kClipCut);
  EXPECT_EQ(Text(), "one\ntwo\nthree");
  control_->Clip(kClipPaste);
  control_->SetSelStart(0);
  control_->SetSellength(3);
  control_->Clip(kClipDelete);
  EXPECT_EQ(Text(), "one\ntwo\nthree");
  control_->Undo();
  EXPECT_EQ(Text(), "twoone\ntwo\nthree");
}

// Formatted text that other programs offer, on the clipboard or by the mouse.
TEST_F(RichTextCommandsTest, WhatComesFromOtherProgramsIsMadeSafe) {
  const wxDataFormat format(wxRichTextBufferDataObject::GetRichTextBufferFormatId());
  std::string nested;
  for (int i = 0; i < 3000; ++i) nested += "<table rows=\"1\" cols=\"1\"><cell><paragraph>";
  const std::pair<std::string, std::string> offers[] = {
      {"<richtext><paragraphlayout partialparagraph=\"true\"><paragraph>"
       "<image imagetype=\"15\"><data>89504E47</data></image>"
       "<text fontweight=\"700\" url=\"http://elsewhere\" fontpointsize=\"-7\">bold</text>"
       "</paragraph></paragraphlayout></richtext>",
       "a-bold-z"},
      {"<richtext><paragraphlayout><paragraph><table width=\"5,9999\" rows=\"70000\" cols=\"70000\"><cell>"
       "<paragraph><text>cell</text></paragraph></cell></table></paragraph></paragraphlayout></richtext>",
       "a-cell\n-z"},
      {"<richtext><paragraphlayout><paragraph>" + nested + "<text>deep</text>", "a-deep\n-z"},
      {"no XML", "a-no XML\n-z"},
  };
  const auto shown = [this] { return SaveBufferXml(control_->Editor().GetBuffer()); };
  for (const auto& [offer, text] : offers) {
    control_->SetText("a-x-z");
    control_->SetSelStart(2);
    control_->SetSellength(1);
    const std::string before = Stored();
    {
      auto* data = new wxCustomDataObject(format);
      data->SetData(offer.size(), offer.data());
      wxTheClipboard->Open();
      wxTheClipboard->SetData(data);
      wxTheClipboard->Close();
    }
    control_->Clip(kClipPaste);
    EXPECT_EQ(Text(), text) << offer.substr(0, 100);
    EXPECT_THAT(shown(), AllOf(Not(HasSubstr("elsewhere")), Not(HasSubstr("image"))));
    ExpectUndoable(before);

    control_->SetText("a-x-z");
    control_->SetSelStart(2);
    control_->SetSellength(1);
    auto* target = control_->Editor().GetDropTarget();
    ASSERT_TRUE(target->GetDataObject()->SetData(format, offer.size(), offer.data()));
    control_->Editor().OnDrop(0, 0, wxDragCopy, target->GetDataObject());
    EXPECT_THAT(Text(), HasSubstr(text.substr(2, 4))) << offer.substr(0, 100);
    EXPECT_THAT(shown(), AllOf(Not(HasSubstr("elsewhere")), Not(HasSubstr("image"))));
  }
  control_->SetLocked(true);
  EXPECT_EQ(control_->Editor().GetDropTarget()->OnDragOver(0, 0, wxDragCopy), wxDragNone);
  EXPECT_EQ(control_->Editor().GetDropTarget()->OnData(0, 0, wxDragCopy), wxDragNone);
}

TEST_F(RichTextCommandsTest, TheButtonBarShowsWhatHoldsAtTheCaret) {
  PutLines();
  const auto tool = [&](const char* bar, int position) -> wxToolBarToolBase* {
    return user_->Find<wxToolBar>(bar).FindById(user_->Find<wxToolBar>(bar).GetToolByPos(position)->GetId());
  };
  user_->Find<wxToolBar>("tbr-bold");
  const int bold = tool("tbr-bold", 0)->GetId();
  EXPECT_FALSE(user_->Find<wxToolBar>("tbr-bold").GetToolState(bold));
  EXPECT_EQ(tool("tbr-bold", 0)->GetShortHelp(), "Bold");
  Press('B', wxMOD_CONTROL);
  EXPECT_TRUE(user_->Find<wxToolBar>("tbr-bold").GetToolState(bold));
  control_->SetSelStart(0);
  Settle();
  EXPECT_FALSE(user_->Find<wxToolBar>("tbr-bold").GetToolState(bold));
  control_->SetSelStart(4);
  control_->SetSellength(3);
  wxCommandEvent event(wxEVT_TOOL, bold);
  user_->Find<wxToolBar>("tbr-bold").HandleWindowEvent(event);
  EXPECT_THAT(Stored(), Not(HasSubstr("fontweight=\"700\"")));
  user_->Choose("cboStyle", "Heading 1");
  EXPECT_THAT(Stored(), HasSubstr("parstyle=\"Heading 1\""));
  user_->Choose("cboSize", "24");
  EXPECT_THAT(Stored(), HasSubstr("fontpointsize=\"24\""));
  control_->SetLocked(true);
  EXPECT_FALSE(user_->IsEnabled("cboStyle"));
  EXPECT_FALSE(user_->Find<wxToolBar>("tbr-bold").GetToolEnabled(bold));
}

}  // namespace
}  // namespace mindloft::test
