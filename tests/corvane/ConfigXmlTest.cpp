#include <random>

#include "backend/corvane/ConfigXml.h"
#include "tests/corvane/CorvaneFixture.h"

namespace mindloft::test {
namespace {

using Corvane::ConfigXml;

constexpr const char* kModify = "frmConfig/Configuration[@Name ='WorkingFolder']/@Value";
constexpr const char* kDescribe = "frmConfig/Configuration[@Name = 'WorkingFolder']/@Value";

/// Set, stored and read again by another expression.
std::string RoundTrip(const std::string& text) {
  ConfigXml document("");
  document.Set(kModify, text);
  return ConfigXml(document.Text()).Select(kDescribe).value_or("(nothing)");
}

TEST(ConfigXmlTest, TextsSurviveExactly) {
  for (const char* text : {"", " ", "C:\\Users\\Zoë", "a\tb\r\nc\nd", "<&>\"'", "&amp;#10;", "🦊 ёж 狐",
                           "\u202Eabc\u202C", "a  b ", "\u0085\u2028", "]]>"}) {
    EXPECT_EQ(RoundTrip(text), text);
  }
  for (const std::string& text : {std::string("\x01"), std::string("a\0b", 3), std::string("\xFF"),
                                  std::string("\xED\xA0\x80"), std::string("\xEF\xBF\xBF")}) {
    EXPECT_EQ(NumberOf([&] { RoundTrip(text); }), ErrorNumber::TextInvalid);
  }
}

TEST(ConfigXmlTest, ExpressionsThatCreate) {
  struct Case {
    const char *expression, *xml;
  };
  for (const auto& [expression, xml] :
       {Case{"@a", "<UserConfiguration a=\"v\"/>"},
        Case{"a/@b", "<UserConfiguration><a b=\"v\"/></UserConfiguration>"},
        Case{"/UserConfiguration/a/@b", "<UserConfiguration><a b=\"v\"/></UserConfiguration>"},
        Case{" a [ @x = \"1'2\" ] [@y='/]'] / @b ",
             "<UserConfiguration><a x=\"1'2\" y=\"/]\" b=\"v\"/></UserConfiguration>"},
        Case{"größe/@名", "<UserConfiguration><größe 名=\"v\"/></UserConfiguration>"}}) {
    ConfigXml document("");
    document.Set(expression, "v");
    EXPECT_EQ(document.Text(), std::string(xml)) << expression;
    EXPECT_EQ(document.Select(expression), "v") << expression;
  }
}

TEST(ConfigXmlTest, ExpressionsThatAreRefused) {
  const std::string before = "<UserConfiguration><a x=\"1\" b=\"old\"/>text</UserConfiguration>";
  for (const std::string& expression :
       {std::string(), std::string("a"), std::string("a/"), std::string("a/text()"), std::string("a[@x='1'"),
        std::string("a[@x ='O'Brien']/@b"), std::string("a[@x='2' or @y='1']/@b"), std::string("//c/@b"),
        std::string("/Other/a/@b"), std::string("a[@x='2'][@x='3']/@b"), std::string("c[@b='1']/@b"),
        std::string("1 + 1"), std::string("$v/@b"), std::string("a/@b\0/@c", 8), std::string("../@b"),
        std::string("x:a/@b"), std::string(5000, '(')}) {
    ConfigXml document(before);
    EXPECT_EQ(NumberOf([&] { document.Set(expression, "new"); }), ErrorNumber::InvalidExpression)
        << expression;
  }
  EXPECT_EQ(NumberOf([&] { ConfigXml(before).Select("a["); }), ErrorNumber::InvalidExpression);
  EXPECT_EQ(NumberOf([&] { ConfigXml(before).Select("a"); }), ErrorNumber::InvalidExpression);
  EXPECT_EQ(ConfigXml(before).Select("a/@c"), std::nullopt);
}

TEST(ConfigXmlTest, SettingKeepsEverythingElse) {
  const std::string before =
      "<?xml version=\"1.0\"?><!-- by hand --><UserConfiguration>\n <a x=\"1\"/>\n <a x=\"2\" b='old'/>"
      "<![CDATA[<&]]>tail</UserConfiguration>";
  ConfigXml document(before);
  document.Set("a[2]/@b", "new");
  std::string expected = before;
  expected.replace(expected.find("b='old'"), 7, "b=\"new\"");
  EXPECT_EQ(document.Text(), expected);
  document.Set("a[@x='1']/@b", "made");
  EXPECT_EQ(document.Select("a[1]/@b"), "made");
  EXPECT_EQ(document.Select("a[2]/@b"), "new");
  // An expression may ask for the text that it replaces.
  document.Set("a[@b='made']/@b", "again");
  EXPECT_EQ(document.Select("a[1]/@b"), "again");
  EXPECT_EQ(document.Select("a[@b='made']/@b"), std::nullopt);
}

TEST(ConfigXmlTest, DamagedDocumentsAreRefused) {
  for (const std::string& xml :
       {std::string("<UserConfiguration>"), std::string("<UserConfiguration a=>"), std::string("text"),
        std::string("<Other/>"), std::string("<UserConfiguration/><UserConfiguration/>"),
        std::string("<UserConfiguration/>\0<x/>", 25), std::string("<UserConfiguration a=\"\xFF\"/>"),
        std::string("<!-- only -->"), std::string("<UserConfiguration><a></UserConfiguration>")}) {
    EXPECT_EQ(NumberOf([&] { ConfigXml document(xml); }), ErrorNumber::ConfigurationDamaged) << xml;
  }
  ConfigXml large("");
  large.Set("@a", std::string(ConfigXml::kMaximumSize, 'x'));
  EXPECT_EQ(NumberOf([&] { large.Text(); }), ErrorNumber::TextTooLong);
}

/// Random changes of a text, the same in every run.
std::string Mutated(std::string text, std::mt19937& random) {
  constexpr std::string_view kPieces[] = {"'", "\"", "[",  "]", "/", "@", "(", ")", "<",    ">",   "&",
                                          "=", "*",  "..", "|", "a", "1", " ", ";", "\xC3", "\x01"};
  for (auto changes = 1 + random() % 4; changes > 0; --changes) {
    const auto at = random() % (text.size() + 1);
    const auto piece = kPieces[random() % std::size(kPieces)];
    if (random() % 2 == 0) {
      text.insert(at, piece);
    } else {
      text.erase(at, 1 + random() % 3);
    }
  }
  return text;
}

TEST(ConfigXmlTest, NoInputCrashesOrWritesElsewhere) {
  std::mt19937 random(7);
  const std::string xml =
      "<UserConfiguration><frmConfig><Configuration Name=\"WorkingFolder\" "
      "Value=\"x\"/></frmConfig><!--c--></UserConfiguration>";
  for (int i = 0; i < 20'000; ++i) {
    const auto document = i % 2 == 0 ? xml : Mutated(xml, random);
    const auto expression = i % 3 == 0 ? std::string(kModify) : Mutated(kModify, random);
    try {
      ConfigXml edited(document);
      edited.Set(expression, "new");
      // What was written can be stored, opened again and found by the same expression.
      ConfigXml again(edited.Text());
      const auto found = again.Select(expression);
      EXPECT_TRUE(!found || found == "new" || expression.find("@Value") == std::string::npos)
          << document << '\n'
          << expression;
    } catch (const Error& error) {
      EXPECT_TRUE(error.Number() == ErrorNumber::InvalidExpression ||
                  error.Number() == ErrorNumber::ConfigurationDamaged)
          << error.what();
    }
  }
}

TEST(ConfigXmlTest, DeepDocumentsAreNoTrouble) {
  std::string deep = "<b/>";
  for (int i = 0; i < 50'000; ++i) deep.insert(0, "<a>"), deep += "</a>";
  ConfigXml document("<UserConfiguration>" + deep + "</UserConfiguration>");
  EXPECT_EQ(document.Select("//b/@c"), std::nullopt);
  document.Set("@x", "1");
  EXPECT_EQ(document.Text(), "<UserConfiguration x=\"1\">" + deep + "</UserConfiguration>");
}

}  // namespace
}  // namespace mindloft::test
