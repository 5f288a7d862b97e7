#include <gmock/gmock.h>

#include <fstream>

#include "backend/errors/Error.h"
#include "backend/tessaline/Text.h"
#include "platform/Paths.h"
#include "tests/support/gui/PrivateServices.h"

namespace mindloft::test {
namespace {

using platform::RegistryRoot;
using HelpersTest = PrivateServices;

constexpr int noNumber = 1 << 20, tooLarge = 1 << 21;

/// What a conversion gives: its value, or one of the two marks.
template <typename Conversion>
std::int64_t Outcome(Conversion conversion) {
  try {
    return conversion();
  } catch (const Error& error) {
    return error.Number() == ErrorNumber::Overflow ? tooLarge : noNumber;
  }
}

TEST_F(HelpersTest, TextsBecomeNumbersOfTheirWidth) {
  struct Case {
    const char* text;
    std::int64_t integer;
  };
  for (auto [text, expected] : {Case{"", 0},
                                Case{"  ", 0},
                                Case{" 42\t", 42},
                                Case{"+7", 7},
                                Case{"-7", -7},
                                Case{"2.5", 2},
                                Case{"3.5", 4},
                                Case{"-0.5", 0},
                                Case{".6", 1},
                                Case{"1.", 1},
                                Case{"1e3", 1000},
                                Case{"32767", 32767},
                                Case{"32767.4", 32767},
                                Case{"32767.5", tooLarge},
                                Case{"-32768", -32768},
                                Case{"-32769", tooLarge},
                                Case{"1e999", tooLarge},
                                Case{"1e-999", 0},
                                Case{"abc", noNumber},
                                Case{"1 2", noNumber},
                                Case{"1x", noNumber},
                                Case{"+-1", noNumber},
                                Case{"-", noNumber},
                                Case{".", noNumber},
                                Case{"1e", noNumber},
                                Case{"0x10", noNumber},
                                Case{"inf", noNumber},
                                Case{"nan", noNumber},
                                Case{"1,5", noNumber}}) {
    EXPECT_EQ(Outcome([&] { return GetConvert().ToInteger(text); }), expected) << text;
  }
  EXPECT_EQ(GetConvert().ToLong("2147483647.4"), 2147483647);
  EXPECT_EQ(Outcome([] { return GetConvert().ToLong("2147483648"); }), tooLarge);
  EXPECT_EQ(GetConvert().ToLong("-2147483648"), INT32_MIN);
}

TEST_F(HelpersTest, TextsBecomeBooleans) {
  for (const char* text : {"True", "TRUE", " true ", "1", "-1", "2.0"})
    EXPECT_TRUE(GetConvert().ToBoolean(text));
  for (const char* text : {"False", "fAlSe", "", "0", "0.4"}) EXPECT_FALSE(GetConvert().ToBoolean(text));
  EXPECT_EQ(Outcome([] { return GetConvert().ToBoolean("yes"); }), noNumber);
}

TEST_F(HelpersTest, StringsAreMeasuredInCharacters) {
  auto& strings = GetStringHelper();
  EXPECT_EQ(strings.JoinStrings({"a", "", "b"}, "\\"), "a\\\\b");
  EXPECT_EQ(strings.JoinStrings({}, ";"), "");
  EXPECT_EQ(strings.Length(ToWx("a\u00e9\u4e2d\U0001F600")), 4);
  for (const char* blank : {"", " ", "\t\r\n", "\u3000\u00a0\u2003"})
    EXPECT_TRUE(strings.IsBlank(ToWx(blank)));
  for (const char* text : {"x", " . ", "\u200b"}) EXPECT_FALSE(strings.IsBlank(ToWx(text)));
}

TEST_F(HelpersTest, Utf8SurvivesAndBrokenBytesAreReplaced) {
  for (std::string text : {std::string("a\u00e9\u4e2d\U0001F600"), std::string("a\0b", 3),
                           std::string("\u00e9\0b", 4), std::string()}) {
    EXPECT_EQ(ToUtf8(ToWx(text)), text);
  }
  EXPECT_EQ(ToUtf8(ToWx("a\xFF"
                        "b\xC3")),
            "a\uFFFDb\uFFFD");
  EXPECT_EQ(ToUtf8(wxString("x") + wxString(static_cast<wchar_t>(0xD800))), "x\uFFFD");
}

TEST_F(HelpersTest, RegistryValuesOfTheWrongTypeAreAbsent) {
  auto& registry = GetRegistry();
  const auto root = RegistryRoot::CurrentUser;
  registry.SetString(root, "k", "text", ToWx("\u4e2d\u4e2d\u4e2d"));
  registry.SetString(root, "k", "digits", " 12 ");
  registry.SetNumber(root, "k", "number", -5);
  registry_->Set(root, "k", "binary", platform::OtherRegistryType());
  EXPECT_EQ(registry.GetString(root, "K", "TEXT", 3), ToWx("\u4e2d\u4e2d\u4e2d"));
  EXPECT_EQ(registry.GetString(root, "k", "text", 2), "");
  EXPECT_EQ(registry.GetString(root, "k", "number"), "");
  EXPECT_EQ(registry.GetNumber(root, "k", "number"), -5);
  for (const char* name : {"text", "digits", "binary", "none"})
    EXPECT_EQ(registry.GetNumber(root, "k", name), -1);
  EXPECT_EQ(registry.GetValue(root, "k", "digits"), 12);
  EXPECT_EQ(registry.GetValue(root, "k", "number"), -5);
  for (const char* name : {"text", "binary", "none"}) EXPECT_EQ(registry.GetValue(root, "k", name), 0);
  EXPECT_EQ(registry.EnumValues(root, "k").size(), 2u) << "texts only";
  registry.DeleteValue(root, "k", "text");
  EXPECT_EQ(registry.EnumValues(root, "k").size(), 1u);
  EXPECT_TRUE(registry.EnumValues(root, "none").empty());
}

TEST_F(HelpersTest, FilesAreFoundInAndBelowAFolderOnly) {
  auto top = folder_ / "top";
  std::filesystem::create_directories(top / "a" / "deep");
  std::filesystem::create_directories(top / "b");
  for (auto file : {folder_ / "secret", top / "a" / "deep" / "x.wav", top / "b" / "x.wav"})
    std::ofstream(file) << "1";
  wxString folder = ToWx(platform::PathToUtf8(top));
  auto& utility = GetUtility();
  auto expected = [](std::filesystem::path path) { return ToWx(platform::PathToUtf8(path)); };
  EXPECT_EQ(utility.LocateFile("x.wav", folder), expected(top / "b" / "x.wav")) << "the nearest";
  EXPECT_EQ(utility.LocateFile("\\deep\\x.wav", folder), expected(top / "a" / "deep" / "x.wav"));
  for (const char* none : {"", "\\", "y.wav", "a", "../secret", "..\\secret"}) {
    EXPECT_EQ(utility.LocateFile(none, folder), "") << none;
  }
  EXPECT_EQ(utility.LocateFile("x.wav", ""), "");
  EXPECT_TRUE(utility.FileExists(expected(folder_ / "secret")));
  EXPECT_FALSE(utility.FileExists(folder));
}

TEST_F(HelpersTest, TheLogTurnsOverKeepsALineALineAndNeverFails) {
  auto& utility = GetUtility();
  EXPECT_FALSE(std::filesystem::exists(utility.LogFilePath())) << "made at the first line";
  utility.Log("first\r\nforged line \x1b[2J {} %v");
  EXPECT_THAT(LoggedText(), testing::EndsWith("first\\x0D\\x0Aforged line \\x1B[2J {} %v\n"));
  std::string line(1000, 'x');
  for (int count = 0; count < 6000; ++count) utility.Log(line);
  std::uintmax_t total = 0;
  int files = 0;
  for (const auto& entry : std::filesystem::directory_iterator(folder_ / "log")) {
    ++files;
    total += entry.file_size();
  }
  EXPECT_EQ(files, 4);
  EXPECT_LE(total, 4u << 20);

  std::ofstream(folder_ / "file") << "in the way";
  Tessaline::Utility blocked(folder_ / "file");
  blocked.Log("lost");
}

}  // namespace
}  // namespace mindloft::test
