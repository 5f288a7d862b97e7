#include <gmock/gmock.h>

#include <fstream>

#include "backend/errors/Error.h"
#include "backend/tessaline/Text.h"
#include "platform/EmbeddedFile.h"
#include "tests/support/gui/PrivateServices.h"

namespace mindloft::test {
namespace {

using Tessaline::LanguageFile;
using Tessaline::Setting;

std::string File(const std::string& texts, const std::string& forms = "",
                 const std::string& head = R"(<language code="9" name="Nine" direction="rtl">)") {
  return head + "<texts>" + texts + "</texts><forms>" + forms + "</forms></language>";
}

TEST(LanguageFileTest, ReadsTextsTitlesCaptionsAndTips) {
  auto file = LanguageFile::Parse(File(
      R"(<text id="1">A &amp; B</text><!-- c --><text id="2"></text>)",
      R"(<form name="f" title="T"><caption control="c" tip="tip">&amp;Go</caption></form><form name="g"/>)"));
  EXPECT_EQ(file.Code(), 9);
  EXPECT_EQ(file.Name(), "Nine");
  EXPECT_TRUE(file.IsRightToLeft());
  EXPECT_EQ(file.Text(1), wxString("A & B"));
  EXPECT_FALSE(file.Text(3));
  EXPECT_EQ(file.Title("f"), wxString("T"));
  EXPECT_FALSE(file.Title("g"));
  EXPECT_EQ(file.CaptionOf("f", "c")->text, "&Go");
  EXPECT_EQ(file.CaptionOf("f", "c")->tip, "tip");
  EXPECT_FALSE(file.CaptionOf("f", "d"));
}

TEST(LanguageFileTest, RefusesEveryDamage) {
  for (const auto& damaged : std::vector<std::string>{
           "",
           "   ",
           "no xml",
           "<language/>",
           "<other/>",
           File("").substr(0, 60),
           File("") + File(""),
           File("", "", R"(<language name="N" direction="ltr">)"),
           File("", "", R"(<language code="x" name="N" direction="ltr">)"),
           File("", "", R"(<language code="99999999999" name="N" direction="ltr">)"),
           File("", "", R"(<language code="1" name="" direction="ltr">)"),
           File("", "", R"(<language code="1" name="N" direction="up">)"),
           File("<text>no number</text>"),
           File(R"(<text id="">x</text>)"),
           File(R"(<text id="-1">x</text>)"),
           File(R"(<text id="1x">x</text>)"),
           File(R"(<text id="1">x</text><text id="1">y</text>)"),
           File(R"(<txt id="1">x</txt>)"),
           File("", R"(<form title="T"/>)"),
           File("", R"(<form name="f"/><form name="f"/>)"),
           File("", R"(<form name="f"><caption>x</caption></form>)"),
           File("",
                R"(<form name="f"><caption control="c">x</caption><caption control="c">y</caption></form>)"),
           File("<text id=\"1\">\xFF</text>"),
           File("<text id=\"1\">\xC0\x80</text>"),
           File("<text id=\"1\">\xED\xA0\x80</text>"),
           File(std::string("<text id=\"1\">\0</text>", 22))}) {
    try {
      LanguageFile::Parse(damaged);
      ADD_FAILURE() << "accepted: " << damaged;
    } catch (const Error& error) {
      EXPECT_EQ(error.Number(), ErrorNumber::TypeMismatch);
    }
  }
}

TEST(LanguageFileTest, AnyChangeOfBytesIsReadOrRefused) {
  const std::string whole(platform::EmbeddedFile("languages/1033.xml"));
  std::uint32_t random = 12345;  // a fixed sequence: a failure comes back
  auto next = [&](std::size_t limit) {
    random = random * 1664525u + 1013904223u;
    return (random >> 8) % limit;
  };
  for (int round = 0; round < 400; ++round) {
    std::string changed = whole;
    switch (next(3)) {
      case 0:
        changed.resize(next(changed.size()));
        break;
      case 1:
        changed.erase(next(changed.size()), 1 + next(40));
        break;
      default:
        for (int count = 0; count < 5; ++count) changed[next(changed.size())] = static_cast<char>(next(256));
    }
    try {
      LanguageFile::Parse(changed);
    } catch (const Error& error) {
      ASSERT_EQ(error.Number(), ErrorNumber::TypeMismatch);
    }
  }
}

class ResourceTest : public PrivateServices {
 protected:
  /// A language folder of this test's own.
  void UseFolder(int code) {
    std::filesystem::create_directories(folder_ / "languages");
    ResetServices({registry_, folder_ / "log", folder_ / "languages"});
    GetResource().SetSetting(Setting::CurrentLanguage, wxString::Format("%d", code));
    ResetServices({registry_, folder_ / "log", folder_ / "languages"});
  }
  void Write(const std::string& name, const std::string& content) {
    std::filesystem::create_directories(folder_ / "languages");
    std::ofstream(folder_ / "languages" / name, std::ios::binary) << content;
  }
};

TEST_F(ResourceTest, AMissingOrDamagedFileGivesEnglishAndIsToldAndLogged) {
  Write("9.xml", "damaged");
  Write("10.xml", File(""));  // of another language than its name says
  for (int code : {9, 10, 11}) {
    UseFolder(code);
    EXPECT_EQ(GetResource().CurrentLanguage(), 1033) << code;
    EXPECT_EQ(GetResource().GetString(59304), "Groups");
    EXPECT_THAT(ToUtf8(GetResource().LastProblem()), testing::HasSubstr(std::to_string(code) + ".xml"));
    EXPECT_FALSE(GetResource().SwitchLanguage(code));
  }
  EXPECT_THAT(LoggedText(), testing::HasSubstr("language file not used"));
}

TEST_F(ResourceTest, ANumberThatALanguageLacksIsEnglishAndOneThatNobodyHasShowsItself) {
  Write("9.xml", File(R"(<text id="59304">neun</text><text id="59305"></text>)"));
  UseFolder(9);
  auto& resource = GetResource();
  EXPECT_EQ(resource.CurrentLanguage(), 9);
  EXPECT_TRUE(resource.LastProblem().empty());
  EXPECT_EQ(resource.GetString(59304), "neun");
  EXPECT_EQ(resource.GetString(59305), "Users") << "an empty text is none";
  EXPECT_EQ(resource.GetString(59302), "Roles");
  EXPECT_EQ(resource.GetString(99), "#99");
  EXPECT_EQ(resource.CaptionOf("frmErrorManager", "cmdOK")->text, "OK");
}

TEST_F(ResourceTest, LanguageValues) {
  auto& resource = GetResource();
  EXPECT_EQ(resource.Languages(), (std::vector{1033, 2052, 1031, 1025, 1041, 1055}));
  EXPECT_EQ(resource.GetLanguageValue("Set_Value"), "1033;2052;1031;1025;1041;1055");
  EXPECT_EQ(resource.GetLanguageValue("Set_Display"), ToWx("English;简体中文;Deutsch;العربية;日本語;Türkçe"));
  EXPECT_EQ(resource.GetLanguageValue("CurrentLangue"), "1033");
  EXPECT_EQ(resource.GetLanguageValue("2052"), "2052.reg");
  EXPECT_EQ(resource.GetLanguageValue("2053"), "");
  EXPECT_EQ(resource.GetLanguageValue("..\\evil"), "");
  EXPECT_TRUE(resource.SwitchLanguage(1025));
  EXPECT_TRUE(resource.IsRightToLeft());
  EXPECT_EQ(resource.GetLanguageValue("CurrentLangue"), "1025");
}

TEST_F(ResourceTest, ParametersFillTheirPlaces) {
  Write("9.xml", File(R"(<text id="1">%2 of %1, 5%% %3 %</text>)"));
  UseFolder(9);
  EXPECT_EQ(GetResource().GetFormatString(1, {"%2", "b"}), ToWx("\u2068b\u2069 of \u2068%2\u2069, 5% %3 %"))
      << "isolated among words that run leftwards";
  EXPECT_EQ(GetResource().GetFormatString(1, {}), "%2 of %1, 5% %3 %");
  EXPECT_TRUE(GetResource().SwitchLanguage(1033));
  EXPECT_EQ(GetResource().GetFormatString(60048, {"%1&"}),
            "\"%1&\" belongs to the system and cannot be deleted.");
}

TEST_F(ResourceTest, SettingsAreTheUsersElseTheMachines) {
  auto& resource = GetResource();
  const char* key = "Software\\Ordwell\\Mindloft\\Settings";
  GetRegistry().SetString(platform::RegistryRoot::LocalMachine, key, "ProxyPort", "8080");
  EXPECT_EQ(resource.GetSetting(Setting::ProxyPort), "");
  EXPECT_EQ(resource.GetSetting(Setting::ProxyPort, true), "8080");
  resource.SetSetting(Setting::ProxyPort, "99");
  EXPECT_EQ(resource.GetSetting(Setting::ProxyPort, true), "99");
  EXPECT_EQ(GetRegistry().GetString(platform::RegistryRoot::CurrentUser, key, "ProxyPort"), "99");
  EXPECT_EQ(resource.GetSetting(Setting::ProxyIP), "") << "settings do not share a value";
  EXPECT_THROW(resource.GetSetting(static_cast<Setting>(99)), Error);
}

}  // namespace
}  // namespace mindloft::test
