#include <gmock/gmock.h>

#include <string>

#include "backend/corvane/document/DocumentLimits.h"
#include "backend/corvane/document/DocumentText.h"
#include "backend/corvane/document/SanitizeDocument.h"

namespace mindloft::test {
namespace {

using namespace Corvane;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

const std::string kStart = R"(<?xml version="1.0" encoding="UTF-8"?><richtext version="1.0.0.0" )"
                           R"(xmlns="http://www.wxwidgets.org">)";

std::string Document(const std::string& paragraphs) {
  return kStart + "<paragraphlayout>" + paragraphs + "</paragraphlayout></richtext>";
}

std::string Table(int rows, int columns, const std::string& cell, int cells = -1) {
  std::string text =
      "<paragraph><table rows=\"" + std::to_string(rows) + "\" cols=\"" + std::to_string(columns) + "\">";
  for (int i = 0; i < (cells < 0 ? rows * columns : cells); ++i) text += "<cell>" + cell + "</cell>";
  return text + "</table></paragraph>";
}

/// The main text of what is left of a document.
std::string Paragraphs(const std::string& paragraphs) {
  const std::string xml = SanitizeDocument(Document(paragraphs)).xml;
  const auto start = xml.find("<paragraphlayout>") + std::string("<paragraphlayout>").size();
  return xml.substr(start, xml.find("</paragraphlayout>") - start);
}

TEST(SanitizeDocumentTest, LeavesWhatTheEditorMakes) {
  const std::string kept[] = {
      R"(<paragraph><text>"plain"</text></paragraph><paragraph><text/></paragraph>)",
      R"(<paragraph alignment="2" leftindent="100" leftsubindent="-60" tabs="100,300" bulletstyle="257" )"
      R"(bulletnumber="1" parstyle="Heading 1"><text textcolor="#FF0000" fontweight="700" fontface="DejaVu Sans" )"
      R"(fontpointsize="12">" &amp; &lt;b&gt; "</text><symbol>29</symbol><text>"after"</text></paragraph>)",
      "<paragraph><text>\"\"quoted\"\"</text></paragraph>",
      "<paragraph><text>\"\xC3\xA9 \xE6\xBC\xA2 \xF0\x9F\x98\x80\"</text></paragraph>",
      R"(<paragraph><table width="50,4100" border-left-style="1" border-left-color="#000000" )"
      R"(border-left-width="1,4098" rows="1" cols="2"><cell padding-top="5,4098"><paragraph><text>"a"</text>)"
      R"(</paragraph></cell><cell><paragraph><text>"b"</text></paragraph></cell></table></paragraph>)",
  };
  for (const auto& paragraphs : kept) {
    const SafeDocument safe = SanitizeDocument(Document(paragraphs));
    EXPECT_EQ(safe.xml, Document(paragraphs));
    EXPECT_EQ(safe.state, DocumentState::Whole) << paragraphs;
  }
}

TEST(SanitizeDocumentTest, WritesTheComponentsXmlInOneWay) {
  const std::pair<std::string, std::string> same[] = {
      {"<paragraph>\n  <symbol>34</symbol>\n  <text>x</text>\n  <symbol>9</symbol><text>\" "
       "y\"</text></paragraph>",
       "<paragraph><text>\"\"x\t y\"</text></paragraph>"},
      {"<paragraph><text></text></paragraph>", "<paragraph><text/></paragraph>"},
      {"<paragraph></paragraph>", "<paragraph><text/></paragraph>"},
      {"", "<paragraph><text/></paragraph>"},
      {"<paragraph><symbol>128512</symbol><symbol>55357</symbol><symbol>56832</symbol></paragraph>",
       "<paragraph><text>\"\xF0\x9F\x98\x80\xF0\x9F\x98\x80\"</text></paragraph>"},
      {R"(<paragraph><text textcolor="#ab12ef">a</text></paragraph>)",
       R"(<paragraph><text textcolor="#AB12EF">"a"</text></paragraph>)"},
      {R"(<paragraph><text fontweight="700">a</text><text fontweight="700">b</text><text>c</text></paragraph>)",
       R"(<paragraph><text fontweight="700">"ab"</text><text>"c"</text></paragraph>)"},
  };
  for (const auto& [written, expected] : same) EXPECT_EQ(Paragraphs(written), expected) << written;
}

TEST(SanitizeDocumentTest, TakesOutWhatIsForeignOrOutOfBounds) {
  const std::pair<std::string, std::string> hostile[] = {
      {R"(<paragraph onload="x"><text url="http://a/">link</text></paragraph>)",
       R"(<paragraph><text>"link"</text></paragraph>)"},
      {R"(<paragraph><image imagetype="15"><data>FFD8</data></image><text>after</text></paragraph>)",
       R"(<paragraph><text>"after"</text></paragraph>)"},
      {R"(<paragraph><field fieldtype="x"/><textbox><paragraph><text>in a box</text></paragraph></textbox></paragraph>)",
       R"(<paragraph><text>"in a box"</text></paragraph>)"},
      {R"(<script>x</script><paragraph><text>y<evil>z</evil></text></paragraph>)",
       R"(<paragraph><text/></paragraph><paragraph><text>"y"</text></paragraph>)"},
      {R"(<paragraph><text fontpointsize="100000" textcolor="url" fontweight="-1">t</text></paragraph>)",
       R"(<paragraph><text>"t"</text></paragraph>)"},
      {R"(<paragraph bulletnumber="2147483647" bulletstyle="64" leftindent="99999999999" linespacing="0"><text>t</text></paragraph>)",
       R"(<paragraph><text>"t"</text></paragraph>)"},
      {R"(<paragraph tabs="1,-2"><text width="5,4098">t</text></paragraph>)",
       R"(<paragraph><text>"t"</text></paragraph>)"},
      {"<paragraph><symbol>55357</symbol><symbol>0</symbol><symbol>-1</symbol><symbol>1114112</"
       "symbol><symbol>x</symbol>"
       "</paragraph>",
       "<paragraph><text/></paragraph>"},
      {Table(2, 2, R"(<paragraph><text>c</text></paragraph>)", 3),
       R"(<paragraph><text>"c c c"</text></paragraph>)"},
      {Table(1, -1, "", 1), "<paragraph><text/></paragraph>"},
      {Table(70000, 70000, "", 2), "<paragraph><text/></paragraph>"},
      {Table(1, kMostColumns + 1, ""), "<paragraph><text/></paragraph>"},
  };
  for (const auto& [written, expected] : hostile) {
    EXPECT_EQ(Paragraphs(written), expected) << written;
    EXPECT_EQ(SanitizeDocument(Document(written)).state, DocumentState::Reduced) << written;
  }
}

TEST(SanitizeDocumentTest, KeepsTheTextOfABrokenDocument) {
  const std::string broken[] = {
      kStart +
          "<paragraphlayout><paragraph><text>one &amp; two</text></paragraph><paragraph><text>\" three\"",
      kStart +
          "<paragraph><text>one &amp; two</text></paragraph><paragraph><text> "
          "three</text></paragraph></richtext>",
      "<richtext><paragraph><text>one &amp; two</text></paragraph></b><text> three</text>",
  };
  for (const auto& each : broken) {
    const SafeDocument safe = SanitizeDocument(each);
    EXPECT_EQ(safe.state, DocumentState::Broken);
    EXPECT_EQ(PlainTextOf(safe.xml), "one & two\n three");
    EXPECT_EQ(PlainTextOf(each), "one & two\n three");
  }
  std::string deep = kStart;
  for (int i = 0; i < 100'000; ++i) deep += "<paragraph>";
  EXPECT_EQ(SanitizeDocument(deep).state, DocumentState::Broken);
  for (int i = 0; i < 100'000; ++i) deep += "</paragraph>";
  EXPECT_EQ(SanitizeDocument(deep + "</richtext>").state, DocumentState::Broken);
  std::string nested = "<paragraph><text>innermost</text></paragraph>";
  for (int i = 0; i < 2 * kMostTableDepth; ++i) nested = Table(1, 1, nested);
  EXPECT_EQ(PlainTextOf(Document(nested)), "innermost");
}

TEST(SanitizeDocumentTest, RefusesMoreThanADocumentMayHold) {
  std::string many;
  for (std::size_t i = 0; i <= kMostParagraphs; ++i) many += "<paragraph/>";
  EXPECT_EQ(SanitizeDocument(Document(many)).state, DocumentState::TooLarge);
  const SafeDocument large = SanitizeDocument(std::string(kMostDocumentBytes + 1, 'x'));
  EXPECT_EQ(large.state, DocumentState::TooLarge);
  EXPECT_EQ(PlainTextOf(large.xml).size(), kMostPlainBytes);
  EXPECT_THAT(Paragraphs(Table(2000, 10, "") + Table(1, 1, "<paragraph><text>x</text></paragraph>")),
              AllOf(HasSubstr("rows=\"2000\""), Not(HasSubstr("rows=\"1\""))));
}

TEST(SanitizeDocumentTest, TakesPlainTextsOver) {
  const std::pair<std::string, std::string> texts[] = {
      {"", ""},
      {"one line", "one line"},
      {"two\r\nlines\rand\na third", "two\nlines\nand\na third"},
      {"<b>no & document</b>", "<b>no & document</b>"},
      {"\"quoted\"", "\"quoted\""},
      {"<?xml version='1.0'?><other/>", "<?xml version='1.0'?><other/>"},
      {std::string("nul\0 bell\a", 10), "nul bell"},
      {"broken \xFF", "broken \xEF\xBF\xBD"},
  };
  for (const auto& [stored, shown] : texts) {
    const SafeDocument safe = SanitizeDocument(stored);
    EXPECT_EQ(safe.state, DocumentState::PlainText);
    EXPECT_EQ(PlainTextOf(safe.xml), shown);
    EXPECT_EQ(SanitizeDocument(safe.xml).xml, safe.xml);
    EXPECT_EQ(PlainTextOf(stored), stored) << "what was stored as it is";
  }
}

TEST(DocumentTextTest, TellsTheTextOfTables) {
  EXPECT_EQ(PlainTextOf(Document(
                "<paragraph><text>before</text></paragraph>" +
                Table(2, 2, "<paragraph><text>c</text></paragraph><paragraph><text>d</text></paragraph>") +
                "<paragraph><text>after</text><symbol>29</symbol><text>all</text></paragraph>")),
            "before\nc\nd\tc\nd\nc\nd\tc\nd\nafter\nall");
}

}  // namespace
}  // namespace mindloft::test
