#include <gmock/gmock.h>

#include <string>

#include "backend/corvane/document/DocumentHtml.h"
#include "backend/corvane/document/DocumentText.h"

namespace mindloft::test {
namespace {

using namespace Corvane;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

std::string Document(const std::string& paragraphs) {
  return R"(<?xml version="1.0" encoding="UTF-8"?><richtext version="1.0.0.0" xmlns="http://www.wxwidgets.org">)"
         "<paragraphlayout>" +
         paragraphs + "</paragraphlayout></richtext>";
}

std::string ParagraphsOfHtml(const std::string& html) {
  const std::string xml = DocumentOfHtml(html).xml;
  const auto start = xml.find("<paragraphlayout>") + std::string("<paragraphlayout>").size();
  return xml.substr(start, xml.find("</paragraphlayout>") - start);
}

TEST(DocumentHtmlTest, WritesAndReadsWhatDocumentsHold) {
  const std::string kept[] = {
      R"(<paragraph alignment="3"><text>"to the right"</text></paragraph>)",
      R"(<paragraph parstyle="Heading 1" fontpointsize="18" fontweight="700"><text>"a heading"</text></paragraph><paragraph><text>"text"</text></paragraph>)",
      R"(<paragraph><text textcolor="#FF0000" fontweight="700" fontface="DejaVu Sans" fontpointsize="12" )"
      R"(fontstyle="93" fontunderlined="1">"red"</text><text>" &amp; plain"</text></paragraph>)",
      R"(<paragraph rightindent="55" leftindent="200" leftsubindent="-100"><text>"indented"</text></paragraph>)",
      R"(<paragraph bulletname="standard/circle" leftindent="0" leftsubindent="60" bulletstyle="512">)"
      R"(<text>"one"</text></paragraph>)",
      R"(<paragraph bulletnumber="3" leftindent="0" leftsubindent="60" bulletstyle="257"><text>"three"</text>)"
      R"(</paragraph><paragraph bulletnumber="4" leftindent="0" leftsubindent="60" bulletstyle="257">)"
      R"(<text>"four"</text></paragraph>)",
      R"(<paragraph><table width="50,4100" rows="2" cols="2"><cell><paragraph><text>"a"</text></paragraph></cell>)"
      R"(<cell><paragraph><text>"b"</text></paragraph></cell><cell><paragraph><text>"c"</text></paragraph></cell>)"
      R"(<cell><paragraph><text>"d"</text></paragraph></cell></table></paragraph><paragraph><text>"after"</text></paragraph>)",
      "<paragraph><text>\"  two  blanks \tand \xD8\xB9\xD8\xB1\xD8\xA8\xD9\x8A \"</text></paragraph>",
      R"(<paragraph><text>"one"</text><symbol>29</symbol><text>"two"</text></paragraph>)",
  };
  for (const auto& paragraphs : kept) {
    const std::string html = HtmlOfDocument(Document(paragraphs));
    EXPECT_EQ(ParagraphsOfHtml(html), paragraphs) << html;
    EXPECT_EQ(DocumentOfHtml(html).state, DocumentState::Whole) << html;
  }
}

TEST(DocumentHtmlTest, ReadsTheSafePartOfForeignHtml) {
  const std::pair<std::string, std::string> foreign[] = {
      {"<p>one<br>two&nbsp;&eacute;&#233;</p>", "one\ntwo &eacute;\xC3\xA9"},
      {"<script>alert('<p>x</p>')</script><style>p{}</style><p onclick='x()'>shown</p>", "shown"},
      {"<p>an <img src='http://a/b.png'>image and a <a href='javascript:x()'>link</a>",
       "an image and a link"},
      {"<ul><li>a<li>b<ol><li>c</ol></ul>d", "a\nb\nc\nd"},
      {"<table><tr><td>a<td>b<tr><td>c</table>x", "a\tb\nc\t\nx"},
      {"<td>no table</td></table></tr>", "no table"},
      {"1 < 2 <unknown>and</unknown> <!-- not <p> this -->3 > 2", "1 < 2 and 3 > 2"},
      {"<p>open <b", "open <b"},
      {"<!DOCTYPE html><?php x ?>\n  text  in\n one line ", "text in one line "},
      {"<h1>Head</h1>\n<p>Body</p>", "Head\nBody"},
      {"<pre>x</pre", "x</pre"},
      {"", ""},
  };
  for (const auto& [html, text] : foreign) {
    EXPECT_EQ(PlainTextOf(DocumentOfHtml(html).xml), text) << html;
    EXPECT_THAT(DocumentOfHtml(html).xml,
                AllOf(Not(HasSubstr("script")), Not(HasSubstr("http://a")), Not(HasSubstr("onclick"))));
  }
  EXPECT_EQ(ParagraphsOfHtml("<p style='color:red;font-family:\"A\",b;font-size:16px;position:fixed'>x"),
            R"(<paragraph textcolor="#FF0000" fontface="A" fontpointsize="12">)"
            R"(<text>"x"</text></paragraph>)");
}

TEST(DocumentHtmlTest, BearsDepthAndSize) {
  std::string deep;
  for (int i = 0; i < 50'000; ++i) deep += "<b><table><tr><td><ul><li>";
  EXPECT_EQ(PlainTextOf(DocumentOfHtml(deep + "innermost").xml).find("innermost") != std::string::npos, true);
  std::string wide = "<table><tr>";
  for (int i = 0; i < 1'000; ++i) wide += "<td>c";
  EXPECT_THAT(PlainTextOf(DocumentOfHtml(wide).xml), HasSubstr("c c"));
  EXPECT_EQ(DocumentOfHtml(std::string(std::size_t{33} << 20, ' ')).state, DocumentState::TooLarge);
}

TEST(DocumentHtmlTest, WritesNoMarkupOfItsText) {
  const std::string html = HtmlOfDocument("<script>x</script> & \"quotes\"");
  EXPECT_THAT(html, AllOf(HasSubstr("&lt;script&gt;"), Not(HasSubstr("<script"))));
  const std::string faces =
      HtmlOfDocument(Document(R"(<paragraph><text fontface="a';x:url(b)&quot;">t</text></paragraph>)"));
  EXPECT_THAT(faces, HasSubstr("font-family:'ax:url(b)'"));
}

}  // namespace
}  // namespace mindloft::test
