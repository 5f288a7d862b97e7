#include "backend/directory/SqliteDirectory.h"
#include "backend/tessaline/Text.h"
#include "config/modService.h"
#include "tests/support/gui/PrivateServices.h"

namespace mindloft::test {
namespace {

/// Logged in to a fresh directory.
class ModServiceTest : public PrivateServices {
 protected:
  void SetUp() override {
    PrivateServices::SetUp();
    const auto file = folder_ / "test.directory";
    SqliteDirectory::Create(file, {"root", "correct horse"});
    SetApplication(std::make_unique<Corvane::Application>(Corvane::EmbeddedDirectoryProvider(file)));
    GetConnection()->SetConnectMode(1);
    ASSERT_TRUE(GetConnection()->Login("root", "correct horse"));
  }
  void TearDown() override {
    SetApplication(nullptr);
    PrivateServices::TearDown();
  }

  static ConfigVariant Read(const wxString& kind, const ConfigVariant& preset = {}) {
    return UserConfigDescribe("frmConfig", "WorkingFolder", "Value", kind, preset);
  }
  static ConfigVariant WriteAndRead(const ConfigVariant& value, const wxString& kind) {
    UserConfigModify("frmConfig", "WorkingFolder", "Value", value);
    return Read(kind);
  }
};

TEST_F(ModServiceTest, EveryKindComesBackAsItWas) {
  EXPECT_EQ(Read("AsString", wxString("preset")), ConfigVariant(wxString("preset")));
  EXPECT_EQ(Read("AsLong", std::int16_t{7}), ConfigVariant(std::int32_t{7}));
  const wxString text = ToWx("C:\\Zoë's \"folder\"\n\t🦊");
  EXPECT_EQ(WriteAndRead(text, "AsString"), ConfigVariant(text));
  EXPECT_EQ(Read("AsString", wxString("preset")), ConfigVariant(text));
  EXPECT_EQ(WriteAndRead(true, "AsBoolean"), ConfigVariant(true));
  EXPECT_EQ(Read("AsString"), ConfigVariant(wxString("True")));
  EXPECT_EQ(WriteAndRead(std::int16_t{-32768}, "AsInteger"), ConfigVariant(std::int16_t{-32768}));
  EXPECT_EQ(WriteAndRead(std::int32_t{2147483647}, "AsLong"), ConfigVariant(std::int32_t{2147483647}));
  EXPECT_EQ(WriteAndRead(0.1f, "AsSingle"), ConfigVariant(0.1f));
  const wxDateTime date(29, wxDateTime::Feb, 2024, 23, 59, 58, 250);
  EXPECT_EQ(WriteAndRead(date, "AsDate"), ConfigVariant(date));
  EXPECT_EQ(Read("AsString"), ConfigVariant(wxString("2024-02-29T23:59:58.250")));
}

TEST_F(ModServiceTest, FailuresAreReportedAndGiveEmpty) {
  WriteAndRead(wxString("no number"), "AsString");
  // A kind that does not exist is no failure.
  for (const char* kind : {"asstring", "AsDouble", ""}) EXPECT_EQ(Read(kind), ConfigVariant()) << kind;
  EXPECT_EQ(LoggedText().find("modService"), std::string::npos);
  EXPECT_EQ(Read("AsLong"), ConfigVariant());
  EXPECT_NE(LoggedText().find("UserConfigDescribe"), std::string::npos);

  // Without the check the second name would select the first entry.
  for (const char* name : {"O'Brien", "x' or '1'='1"}) {
    UserConfigModify("frmConfig", name, "Value", wxString("wrong"));
    EXPECT_EQ(UserConfigDescribe("frmConfig", name, "Value", "AsString", {}), ConfigVariant()) << name;
  }
  EXPECT_NE(LoggedText().find("UserConfigModify"), std::string::npos);
  EXPECT_EQ(Read("AsString"), ConfigVariant(wxString("no number")));

  GetConnection()->Logout();
  EXPECT_EQ(Read("AsString", wxString("preset")), ConfigVariant());
  SetApplication(nullptr);
  EXPECT_EQ(Read("AsString", wxString("preset")), ConfigVariant());
  UserConfigModify("frmConfig", "WorkingFolder", "Value", wxString("nobody"));
}

}  // namespace
}  // namespace mindloft::test
