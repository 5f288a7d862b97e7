#include <gmock/gmock.h>
#include <wx/utils.h>

#include <set>

#include "platform/Paths.h"
#include "platform/Random.h"
#include "platform/Shell.h"
#include "platform/SystemGuid.h"
#include "platform/SystemVersion.h"
#include "platform/ui/FileDialogs.h"
#include "platform/ui/Metrics.h"
#include "tests/support/TemporaryFolder.h"

namespace mindloft::test {
namespace {

using namespace platform;

TEST(Guid, IsNewEachTimeAndOfVersionFour) {
  std::set<std::string> guids;
  for (int i = 0; i < 1000; ++i) {
    auto bytes = NewGuidBytes();
    ASSERT_EQ(bytes.size(), 16u);
    EXPECT_EQ(static_cast<unsigned char>(bytes[7]) >> 4, 4);
    EXPECT_EQ(static_cast<unsigned char>(bytes[8]) >> 6, 2);
    guids.insert(bytes);
  }
  EXPECT_EQ(guids.size(), 1000u);
  FakeGuidSource failing([] { return std::string(); });
  EXPECT_TRUE(NewGuidBytes().empty());
}

TEST(Paths, LieWhereTheSystemWantsThem) {
  for (const auto& path : {ProgramFolder(), ResourceFolder(), DefaultDirectoryFile(), ConfigFolder(),
                           LogFolder(), RuntimeFolder()}) {
    EXPECT_TRUE(path.is_absolute()) << path;
  }
  EXPECT_TRUE(std::filesystem::is_directory(ProgramFolder()));
  EXPECT_TRUE(std::filesystem::is_directory(RuntimeFolder()));
  EXPECT_EQ(DefaultDirectoryFile().filename(), "mindloft.directory");
  const std::string name = "知识/نطاق/😀";
  EXPECT_EQ(PathToUtf8(PathFromUtf8(name)), name);
  if (wxGetOsVersion() & wxOS_WINDOWS) return;
  TemporaryFolder folder;
  wxSetEnv("XDG_CONFIG_HOME", folder.Path().string());
  EXPECT_EQ(ConfigFolder(), folder / "mindloft");
  wxSetEnv("XDG_CONFIG_HOME", "relative");
  EXPECT_EQ(ConfigFolder().filename(), "mindloft");
  EXPECT_TRUE(ConfigFolder().is_absolute()) << "a relative one does not count";
  wxUnsetEnv("XDG_CONFIG_HOME");
  // A folder that others can enter is no place for a private socket.
  wxString before;
  bool wasSet = wxGetEnv("XDG_RUNTIME_DIR", &before);
  std::filesystem::permissions(folder.Path(), std::filesystem::perms(0755));
  wxSetEnv("XDG_RUNTIME_DIR", folder.Path().string());
  EXPECT_NE(RuntimeFolder(), folder.Path());
  std::filesystem::permissions(folder.Path(), std::filesystem::perms(0700));
  EXPECT_EQ(RuntimeFolder(), folder.Path());
  wasSet ? wxSetEnv("XDG_RUNTIME_DIR", before) : wxUnsetEnv("XDG_RUNTIME_DIR");
}

TEST(Shell, OpensWhatExistsAndAddressesOfKnownKinds) {
  std::vector<std::string> opened;
  FakeShell shell([&](const std::string& target) {
    opened.push_back(target);
    return true;
  });
  TemporaryFolder folder;
  EXPECT_TRUE(OpenWithShell(folder.Path()));
  EXPECT_FALSE(OpenWithShell(folder / "absent"));
  EXPECT_FALSE(OpenWithShell({}));
  EXPECT_TRUE(OpenUrl("HTTPS://example.org/a b"));
  EXPECT_TRUE(OpenUrl("mailto:someone@example.org"));
  for (const char* url : {"", "file:///etc/passwd", "-x", "example.org", "http:\n"})
    EXPECT_FALSE(OpenUrl(url)) << url;
  EXPECT_THAT(opened, testing::ElementsAre(PathToUtf8(folder.Path()), "HTTPS://example.org/a b",
                                           "mailto:someone@example.org"));
}

TEST(Shell, TellsWhenThereIsNoProgramToOpenWith) {
  if (wxGetOsVersion() & wxOS_WINDOWS) GTEST_SKIP() << "the shell is always there";
  TemporaryFolder empty;
  wxString path;
  wxGetEnv("PATH", &path);
  wxSetEnv("PATH", empty.Path().string());
  EXPECT_FALSE(OpenInSystemShell("/"));
  wxSetEnv("PATH", path);
}

TEST(SystemVersion, HasANameAndANumber) {
  EXPECT_FALSE(GetSystemName().empty());
  EXPECT_TRUE(OSInfo().starts_with(GetSystemName() + " (")) << OSInfo();
  EXPECT_NE(OSInfo().find('.'), std::string::npos) << OSInfo();
}

TEST(Metrics, MeasureTheScreenAndConvertTwips) {
  auto real = GetScreenMetrics();
  EXPECT_GT(real.captionHeight, 0);
  EXPECT_GT(real.fullScreenHeight, real.captionHeight);
  // A maximised window may reach over the edges of the screen by its border.
  EXPECT_LE(real.fullScreenHeight, real.screen.y + real.captionHeight);
  EXPECT_LE(real.fullScreenWidth, real.screen.x);
  for (int pixels : {0, 1, -8, 1919, 30000}) {
    EXPECT_EQ(TwipsToPixelsX(PixelsToTwipsX(pixels)), pixels);
    EXPECT_EQ(TwipsToPixelsY(PixelsToTwipsY(pixels)), pixels);
  }
  EXPECT_EQ(PixelsToTwipsX(2147483647), 2147483647) << "the nearest that fits";
  FakeScreen small({wxSize(640, 480), 640, 400, 20});
  EXPECT_EQ(GetScreenMetrics().fullScreenHeight, 400);
}

TEST(FileDialogs, HandTheirRequestToATestsAnswer) {
  std::vector<FileDialogRequest> asked;
  FakeFileDialogs answers([&](const FileDialogRequest& request) {
    asked.push_back(request);
    return wxString::Format("answer %d", static_cast<int>(asked.size()));
  });
  EXPECT_EQ(BrowseFolder(nullptr), "answer 1");
  EXPECT_EQ(SaveFileDialog(nullptr, "Text|*.txt", "a.txt"), "answer 2");
  EXPECT_EQ(OpenFileDialog(nullptr, "Text|*.txt"), "answer 3");
  EXPECT_EQ(asked[0].kind, FileDialogRequest::Kind::Folder);
  EXPECT_EQ(asked[1].kind, FileDialogRequest::Kind::Save);
  EXPECT_EQ(asked[1].defaultName, "a.txt");
  EXPECT_EQ(asked[2].kind, FileDialogRequest::Kind::Open);
}

}  // namespace
}  // namespace mindloft::test
