#include <gmock/gmock.h>

#include <fstream>

#include "app/modPublic.h"
#include "backend/tessaline/Text.h"
#include "config/modService.h"
#include "platform/Paths.h"
#include "platform/Shell.h"
#include "platform/ui/FileDialogs.h"
#include "tests/app/StartFixture.h"
#include "tests/support/gui/ModalDriver.h"

namespace mindloft::test {
namespace {

class WorkingFolderTest : public StartFixture {
 protected:
  void SetUp() override {
    StartFixture::SetUp();
    MakeDirectory();
    LogIn();
  }
  void LogIn() {
    SetApplication(std::make_unique<Corvane::Application>(Corvane::EmbeddedDirectoryProvider(file_)));
    GetConnection()->SetConnectMode(1);
    ASSERT_TRUE(GetConnection()->Login(kUser, kPassword));
  }
};

TEST_F(WorkingFolderTest, IsAskedForWhenThereIsNoneAndKeptWithTheUser) {
  const wxString folder = ToWx("/srv/Zoë's \"papers\"");
  wxString chosen;
  int shown = 0;
  const platform::FakeFileDialogs dialogs([&](const platform::FileDialogRequest& request) {
    EXPECT_EQ(request.kind, platform::FileDialogRequest::Kind::Folder);
    ++shown;
    return chosen;
  });
  ModalDriver modal;
  EXPECT_EQ(GetWorkingFolder(false), "");
  modal.ExpectMessage(59805, wxID_NO);
  EXPECT_EQ(GetWorkingFolder(true), "");
  EXPECT_EQ(shown, 0);
  // Yes, but then no folder: nothing is kept.
  modal.ExpectMessage(59805, wxID_YES);
  EXPECT_EQ(GetWorkingFolder(true), "");
  EXPECT_EQ(GetWorkingFolder(false), "");
  chosen = folder;
  modal.ExpectMessage(59805, wxID_YES);
  EXPECT_EQ(GetWorkingFolder(true), folder);
  modal.Verify();

  LogIn();
  EXPECT_EQ(GetWorkingFolder(true), folder);
  EXPECT_EQ(shown, 2);
  const auto stored = UserConfigDescribe("frmConfig", "WorkingFolder", "Value", "AsString", wxString());
  EXPECT_EQ(stored, ConfigVariant(folder));
}

TEST_F(WorkingFolderTest, HelpOpensTheLanguagesFileOrSaysWhatIsMissing) {
  std::vector<std::string> opened;
  bool works = true;
  const platform::FakeShell shell([&](const std::string& path) {
    opened.push_back(path);
    return works;
  });
  ModalDriver modal;
  for (const int language : GetResource().Languages()) {
    ASSERT_TRUE(GetResource().SwitchLanguage(language));
    ShowHelp();
    ASSERT_FALSE(opened.empty());
    EXPECT_THAT(opened.back(), testing::EndsWith(std::to_string(language) + ".html"));
    EXPECT_TRUE(std::filesystem::exists(platform::PathFromUtf8(opened.back())));
  }
  const auto languages = GetResource().Languages().size();
  EXPECT_EQ(opened.size(), languages);
  works = false;
  modal.ExpectMessage(61246, wxID_OK);
  ShowHelp();

  // An installation that lacks the file.
  std::filesystem::copy(LanguageFolder(), folder_ / "languages");
  std::ifstream english(LanguageFolder() / "1033.xml");
  std::string xml((std::istreambuf_iterator<char>(english)), {});
  const std::string name = "mindloft-help-1033";
  xml.replace(xml.find(name), name.size(), "nowhere");
  std::ofstream(folder_ / "languages" / "1033.xml") << xml;
  ResetServices({registry_, folder_ / "log", folder_ / "languages"});
  modal.ExpectMessage(61245, wxID_OK);
  ShowHelp();
  EXPECT_EQ(opened.size(), languages + 1) << "the failed attempt only";
}

}  // namespace
}  // namespace mindloft::test
