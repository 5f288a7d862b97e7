#include <gmock/gmock.h>

#include <fstream>

#include "tests/app/console/ConsoleFixture.h"

namespace mindloft::test {
namespace {

using ConsoleTest = ConsoleFixture;

TEST_F(ConsoleTest, ASecondInstanceHandsItsCommandLineOverAndEnds) {
  MakeDirectory();
  auto& first = Start();
  WaitForLog(kWindow);
  EXPECT_EQ(WaitForEnd(Start({"kNoWlEdGe", "dOmAiNs"})), 0);
  WaitForLog("start: selected node \"Knowledge Domains\"");
  EXPECT_EQ(WaitForEnd(Start({"users"})), 0);
  WaitForLog("start: selected node \"Users\"");

  // Nothing of these is a node; each arrives, none does harm.
  const std::string tooLongToBeANode(32000 - 200, 'x');
  const std::vector<std::string> others[] = {{}, {"nobody"}, {"\x01\x02\x1b\x7f\n\t"}, {tooLongToBeANode}};
  int handedOver = 2;
  for (const auto& arguments : others) {
    EXPECT_EQ(WaitForEnd(Start(arguments)), 0);
    WaitForLog(kHandOver, ++handedOver);
  }
  EXPECT_EQ(WaitForEnd(Start({"Roles"})), 0);
  WaitForLog("start: selected node \"Roles\"");
  EXPECT_EQ(CountInLog("start: selected node"), 3);
  EXPECT_EQ(CountInLog(kWindow), 1);
  EXPECT_FALSE(first.HasEnded());
}

TEST_F(ConsoleTest, OfTwoStartedInTheSameInstantOneShowsItsWindow) {
  MakeDirectory();
  for (int round = 1; round <= 3; ++round) {
    auto& one = Start({"Users"});
    auto& other = Start({"Users"});
    WaitForLog(kWindow, round);
    WaitForLog("start: selected node \"Users\"", round);
    const bool oneIsFirst = &WaitForEither(one, other) == &other;
    auto& first = oneIsFirst ? one : other;
    EXPECT_EQ((oneIsFirst ? other : one).Wait(), 0);
    EXPECT_FALSE(first.HasEnded());
    EXPECT_EQ(CountInLog(kWindow), round);
    first.Kill();
    first.Wait();
  }
}

TEST_F(ConsoleTest, ACommandLineOfAnyKindStartsTheConsole) {
  MakeDirectory();
  int windows = 0;
  for (const std::string& argument : {std::string(32000 - 200, 'y'), std::string("\x01\x02\x1b\x7f\n\t")}) {
    auto& console = Start({argument});
    WaitForLog(kWindow, ++windows);
    console.Kill();
    console.Wait();
  }
}

TEST_F(ConsoleTest, SettingsOfTheWrongTypeOrLengthNeverKeepItFromStarting) {
  MakeDirectory();
  const platform::RegistryValue number = 7u, longText = std::string(100000, '9'),
                                other = platform::OtherRegistryType{};
  int windows = 0, logins = 0;
  const auto shows = [&](const char* text, int& times) {
    auto& console = Start();
    WaitForLog(text, ++times);
    console.Kill();
    console.Wait();
  };
  const platform::RegistryValue damages[] = {number, longText, other, std::string("\xff\x01 text")};
  for (const auto& damage : damages) {
    for (const char* name : {"Left", "Top", "Width", "Height", "State", "Border"}) SetFormPos(name, damage);
    Set("CurrentLanguage", damage);
    shows(kWindow, windows);
  }
  for (const auto& damage : damages) {
    for (const char* name : {"AutoLoginEnabled", "ConnectMode", "ConfigurationServer", "LoginPassword"})
      Set(name, damage);
    shows(kLogin, logins);
  }
}

TEST_F(ConsoleTest, ADamagedOrMissingLanguageFileIsTold) {
  MakeDirectory();
  const auto languages = CopyProgram() / "languages";
  int told = 0;
  const auto tells = [&](const char* language) {
    Set("CurrentLanguage", language);
    auto& console = Start();
    WaitForLog("start: a language file cannot be used", ++told);
    EXPECT_FALSE(console.HasEnded());
    console.Kill();
    console.Wait();
  };
  std::filesystem::resize_file(languages / "2052.xml", 1000);
  tells("2052");
  std::filesystem::resize_file(languages / "1033.xml", 0);
  tells("1033");
  std::filesystem::remove_all(languages);
  tells("1025");
  EXPECT_EQ(CountInLog(kWindow), 0);
}

TEST_F(ConsoleTest, WithoutADirectoryItAsks) {
  Start();
  WaitForLog(kLogin);
  // A second one brings the dialog to the front, and selects when somebody has logged in.
  EXPECT_EQ(WaitForEnd(Start({"Users"})), 0);
  WaitForLog(kHandOver);
  EXPECT_EQ(CountInLog(kWindow), 0);
}

TEST_F(ConsoleTest, HelpAndVersionArePrintedWhateverRuns) {
  MakeDirectory();
  Start();
  WaitForLog(kWindow);
  for (const char* option : {"--help", "--version"}) {
    auto& console = StartAlone({option});
    std::string printed;
    while (const auto line = console.ReadLine()) printed += *line + "\n";
    EXPECT_EQ(WaitForEnd(console), 0);
    EXPECT_THAT(printed, testing::HasSubstr(*(option + 2) == 'h' ? "--directory FILE" : "Mindloft"));
  }
  EXPECT_EQ(CountInLog(kHandOver), 0);
}

}  // namespace
}  // namespace mindloft::test
