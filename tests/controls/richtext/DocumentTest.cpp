#include <gmock/gmock.h>

#include "backend/corvane/document/DocumentText.h"
#include "controls/richtext/Document.h"
#include "controls/richtext/EditCommands.h"
#include "controls/richtext/EditFormat.h"
#include "controls/richtext/TXControl.h"
#include "tests/controls/richtext/RichTextFixture.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

class DocumentTest : public RichTextFixture {
 protected:
  void SetUp() override {
    RichTextFixture::SetUp();
    control_ = &Show(new TXControl(frame_));
  }
  int Load(const std::string& stored) { return control_->Content().Load(stored); }
  /// A heading, formatted text in several scripts, a list, and a table with a list in a cell.
  void WriteDocument() {
    Type("The heading\n");
    control_->SetSelStart(0);
    ApplyStyleName(control_->Editor(), "Heading 1");
    control_->Editor().SetInsertionPointEnd();
    ApplyStyleName(control_->Editor(), "Normal");
    control_->Editor().WriteText(wxString::FromUTF8(" Ä 漢字 مرحبا 😀 \"quoted\"\tand "));
    Press('B', wxMOD_CONTROL);
    Type("bold \n");
    Press('B', wxMOD_CONTROL);
    RunCommand(*control_, CommandOf("numbering"));
    Type("first\nsecond\n");
    RunCommand(*control_, CommandOf("numbering"));
    PutLetters(2, 3);
    RunCommand(*control_, CommandOf("bullets"));
  }
};

TEST_F(DocumentTest, IsUnchangedWhenItIsStoredAndReopened) {
  WriteDocument();
  const std::string stored = Stored();
  const std::string text = Text();
  EXPECT_THAT(Corvane::PlainTextOf(stored), AllOf(HasSubstr("The heading\n"), HasSubstr("a\tb\tc\nd\te\tf")));
  Events();
  EXPECT_EQ(Load(stored), 0);
  EXPECT_EQ(Stored(), stored);
  EXPECT_EQ(Text(), text);
  EXPECT_FALSE(control_->Editor().CanUndo());
  EXPECT_THAT(Events(), Not(testing::Contains("Change")));
  TXControl other(frame_);
  EXPECT_EQ(other.Content().Load(stored), 0);
  EXPECT_EQ(other.Content().Save(), stored);
}

TEST_F(DocumentTest, KeepsItsFormatsAsHtml) {
  WriteDocument();
  const std::string html = control_->Content().SaveHtml();
  EXPECT_THAT(html, AllOf(HasSubstr("<h1"), HasSubstr("<table"), HasSubstr("<ol"), HasSubstr("<ul"),
                          HasSubstr("font-weight:bold")));
  EXPECT_EQ(control_->Content().LoadHtml(html), 0);
  EXPECT_EQ(control_->Content().SaveHtml(), html);
}

TEST_F(DocumentTest, TakesPlainTextOver) {
  EXPECT_EQ(Load("two\nlines & <tags>"), 0);
  EXPECT_EQ(Text(), "two\nlines & <tags>");
  EXPECT_EQ(Load(""), 0);
  EXPECT_EQ(Text(), "");
  Type("x");
  EXPECT_EQ(Text(), "x");
}

TEST_F(DocumentTest, TellsWhatWasWrong) {
  const std::string start = "<richtext><paragraphlayout><paragraph>";
  const std::string end = "</paragraph></paragraphlayout></richtext>";
  const std::tuple<std::string, int, std::string> documents[] = {
      {start + "<text>cut", 60095, "cut"},
      {start + "<image imagetype=\"15\"><data>FF</data></image><text url=\"http://a\">link</text>" + end,
       60097, "link"},
      {std::string(std::size_t{33} << 20, 'x'), 60096, ""},
  };
  for (const auto& [stored, message, text] : documents) {
    if (!text.empty()) {
      EXPECT_EQ(Load(stored), message);
      EXPECT_EQ(Text(), text);
    }
  }
}

// Attributes at the limits of what is let in, and nested tables: the component must lay them out, show and
// store them.
TEST_F(DocumentTest, ShowsWhatIsJustAllowed) {
  std::string nested = "<paragraph><text>deep</text></paragraph>";
  for (int i = 0; i < 4; ++i)
    nested =
        "<paragraph><table width=\"20000,4100\" padding-left=\"1000,4097\" rows=\"1\" cols=\"2\"><cell>" +
        nested + "</cell><cell/></table></paragraph>";
  const std::string paragraphs[] = {
      "<paragraph leftindent=\"20000\" leftsubindent=\"-20000\" rightindent=\"20000\" tabs=\"0,0,20000\">"
      "<text fontpointsize=\"400\" fontface=\"No such face\">huge</text></paragraph>",
      "<paragraph bulletstyle=\"32767\"><text>x</text></paragraph>",
      "<paragraph bulletstyle=\"16\" bulletnumber=\"9999\" linespacing=\"100\"><text>x</text></paragraph>",
      "<paragraph bulletstyle=\"512\" bulletname=\"standard/nothing\"><text>&#9;&#9;</text></paragraph>",
      "<paragraph parspacingbefore=\"2000\" pagebreak=\"1\"><text texteffects=\"4095\" "
      "texteffectflags=\"4095\">x</text></paragraph>",
      "<paragraph><text textcolor=\"#ab12ef\" bgcolor=\"#fedcba\">x</text></paragraph>",
      nested,
  };
  for (const auto& each : paragraphs) {
    Load("<richtext><paragraphlayout>" + each + "</paragraphlayout></richtext>");
    Settle();
    control_->Editor().Update();
    const std::string stored = Stored();
    Load(stored);
    EXPECT_EQ(Stored(), stored);
    Type("y");
    control_->Undo();
  }
}

}  // namespace
}  // namespace mindloft::test
