#include <gtest/gtest.h>

#include "backend/corvane/StyleXml.h"
#include "tests/corvane/CorvaneFixture.h"

namespace mindloft::test {
namespace {

using Corvane::ReadStyle;
using Corvane::StyleFormat;
using Corvane::WriteStyle;

StyleFormat Everything() {
  return {.fontName = "Old & \"New\" <Style>",
          .fontSize = 42,
          .bold = true,
          .italic = true,
          .underline = true,
          .strikeThrough = true,
          .colour = "#12abEF",
          .alignment = StyleFormat::AlignCentred,
          .leftIndent = "4",
          .rightIndent = "-3",
          .firstLineIndent = "100",
          .spaceBefore = "1",
          .spaceAfter = "2",
          .background = "#000000",
          .sample = "first\r\n\tsecond \xD9\x85\xD8\xB1\xD8\xAD\xD8\xA8\xD8\xA7 & \"end\""};
}

TEST(StyleXmlTest, AFormatIsReadAsItWasWritten) {
  for (const auto& format : {StyleFormat(), Everything()}) {
    const auto definition = WriteStyle(format);
    const auto reading = ReadStyle(definition);
    EXPECT_EQ(reading.problem, "") << definition;
    EXPECT_TRUE(reading.format == format) << definition;
    // Writing is stable, and what is at its default leaves the definition again.
    EXPECT_EQ(WriteStyle(format, WriteStyle(Everything())), WriteStyle(format));
  }
  EXPECT_LT(WriteStyle({.fontName = std::string(64, '"'), .sample = std::string(200, '"')}).size(), 2000u);
}

TEST(StyleXmlTest, WhatANewerConsoleKnowsStays) {
  const auto written = WriteStyle(Everything(), R"(<style shadow="deep" bold="false"><glow/></style>)");
  EXPECT_NE(written.find("shadow=\"deep\""), std::string::npos) << written;
  EXPECT_NE(written.find("<glow"), std::string::npos) << written;
  EXPECT_TRUE(ReadStyle(written).format == Everything());
  EXPECT_TRUE(ReadStyle(WriteStyle(Everything(), "<broken")).format == Everything());
  // The parser lets an attribute stand there twice.
  EXPECT_EQ(WriteStyle({.fontSize = 10}, R"(<style background="" background="#ffffff"/>)"), WriteStyle({}));
}

TEST(StyleXmlTest, WhatCannotBeReadHasItsDefaultAndIsTold) {
  std::string deep;
  for (int i = 0; i < 10'000; ++i) deep += "<a>";
  const std::string bomb =
      "<!DOCTYPE style [<!ENTITY a \"ha\"><!ENTITY b \"&a;&a;\"><!ENTITY x SYSTEM \"file:///etc/passwd\">]>"
      "<style font=\"&b;&x;\"/>";
  struct {
    std::string definition, problem;
    StyleFormat expected;
  } const cases[] = {
      {"", "", {}},
      {"<style/>", "", {}},
      {"plain text", "at ", {}},
      {"<style font=\"A\"", "at ", {}},
      {"<css font=\"A\"/>", "no style", {}},
      {std::string("<style\0 font=\"A\"/>", 19), "at ", {}},
      {"\xFF\xFE<\x01", "at ", {}},
      {deep, "at ", {}},
      {"<style>" + std::string(70'000, 'x') + "</style>", "too long", {}},
      {bomb, "", {.fontName = "&b;&x;"}},  // nothing is looked up
      {R"(<style size="3" bold="yes" italic="true"/>)",
       "bad value of size;bad value of bold",
       {.italic = true}},
      {R"(<style size="99999999999999999999"/>)", "size", {}},
      {R"(<style size="12pt" underline="true"/>)", "size", {.underline = true}},
      {R"(<style alignment="3"/>)", "alignment", {}},
      {R"(<style colour="red" background="#12345"/>)", "colour;bad value of background", {}},
      {R"(<style leftIndent="1e3" rightIndent="101" spaceBefore="-100"/>)",
       "leftIndent;bad value of rightIndent",
       {.spaceBefore = "-100"}},
      {"<style font=\"" + std::string(300, 'f') + "\"/>", "font", {}},
  };
  for (const auto& [definition, problem, expected] : cases) {
    SCOPED_TRACE(definition.substr(0, 100));
    const auto reading = ReadStyle(definition);
    EXPECT_TRUE(reading.format == expected);
    EXPECT_EQ(problem.empty(), reading.problem.empty()) << reading.problem;
    EXPECT_NE(reading.problem.find(problem), std::string::npos) << reading.problem;
  }
}

class StyleTest : public CorvaneFixture {};

TEST_F(StyleTest, AStyleKeepsItsFormatAndKnowsItsDomains) {
  auto style = server_->Styles()->Add();
  style->SetName("Night");
  style->SetFormat(Everything());
  style->Update();
  const auto stored = server_->Styles()->Item(style->Id());
  EXPECT_TRUE(stored->Format() == Everything());
  const auto definition = stored->Definition();
  stored->SetFormat(Everything());
  EXPECT_EQ(stored->Definition(), definition);
  EXPECT_EQ(stored->Domains().Count(), 0);
  const auto domain = AddDomain("Domain");
  domain->SetStyleId(style->Id());
  domain->Update();
  EXPECT_EQ(stored->Domains().Count(), 1);

  stored->SetDefinition("<style size='0' font='F'/>");
  EXPECT_EQ(stored->FormatProblem(), "bad value of size");
  EXPECT_EQ(stored->Format().fontName, "F");
  stored->SetFormat(stored->Format());
  EXPECT_EQ(stored->FormatProblem(), "");

  // What another console has stored meanwhile.
  style->SetName("Day");
  style->Update();
  EXPECT_EQ(NumberOf([&] { stored->Update(); }), ErrorNumber::Conflict);
  auto merged = stored->Current();
  EXPECT_EQ(merged.name, "Day");
  merged.definition = stored->Edited().definition;
  stored->Rebase(stored->Current(), merged);
  stored->Update();
  EXPECT_EQ(server_->Styles()->Item(style->Id())->Name(), "Day");
  EXPECT_EQ(server_->Styles()->Item(style->Id())->Format().fontName, "F");
}

TEST_F(StyleTest, TheStartingSetIsReadWithoutAProblem) {
  const auto styles = server_->Styles();
  EXPECT_GE(styles->Count(), 6);
  for (const auto& style : styles->View().Page(0, styles->Count())) {
    const auto reading = ReadStyle(style.definition);
    EXPECT_EQ(reading.problem, "") << style.name;
    EXPECT_FALSE(reading.format.fontName.empty()) << style.name;
    EXPECT_NE(reading.format.colour, reading.format.background) << style.name;
    EXPECT_TRUE(server_->Styles()->Item(Corvane::IdText(style.id))) << style.name;
  }
}

}  // namespace
}  // namespace mindloft::test
