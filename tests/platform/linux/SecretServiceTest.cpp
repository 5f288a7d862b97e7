#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>

#include "platform/SecretStore.h"
#include "tests/support/ChildProcess.h"
#include "tests/support/TemporaryFolder.h"

namespace mindloft::test {
namespace {

namespace fs = std::filesystem;

TEST(SecretServiceTest, FilesOfSecretsAreTheirOwnersOnly) {
  const TemporaryFolder folder;
  auto store = platform::FileSecretStore(folder / "secrets");
  store->Protect("secret");
  for (const auto& entry : fs::directory_iterator(folder / "secrets")) {
    struct stat status {};
    ASSERT_EQ(stat(entry.path().c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600u);
  }
}

// A session of its own with a real keyring; the child process in it keeps the secret.
TEST(SecretServiceTest, TheKeyringOfADesktopKeepsTheSecret) {
  if (!fs::exists("/usr/bin/gnome-keyring-daemon") || !fs::exists("/usr/bin/dbus-run-session")) {
    GTEST_SKIP() << "there is no keyring on this computer";
  }
  const TemporaryFolder folder;
  const auto script = folder / "session.sh";
  std::ofstream(script)
      << "#!/bin/sh\n"
      << "export HOME='" << folder.Path().string() << "' XDG_CONFIG_HOME='" << (folder / "config").string()
      << "' XDG_DATA_HOME='" << (folder / "data").string() << "' XDG_RUNTIME_DIR='" << folder.Path().string()
      << "'\n"
      << "printf unlocked | gnome-keyring-daemon --unlock --components=secrets >/dev/null 2>&1\n"
      << "exec '" << fs::read_symlink("/proc/self/exe").string() << "' --child secrets\n";
  fs::permissions(script, fs::perms::owner_all);
  ChildProcess session("/usr/bin/dbus-run-session", {"--", script.string()});
  std::string said;
  while (const auto line = session.ReadLine()) said += *line + "\n";
  EXPECT_EQ(session.Wait(), 0) << said;
  EXPECT_NE(said.find("kept in service"), std::string::npos) << said;
  EXPECT_FALSE(fs::exists(folder / "config" / "mindloft" / "secrets")) << "no file beside the keyring";
}

}  // namespace
}  // namespace mindloft::test
