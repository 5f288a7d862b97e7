#include <gmock/gmock.h>
#include <wx/utils.h>

#include <fstream>

#include "backend/errors/Error.h"
#include "platform/RegistryImport.h"
#include "platform/Unicode.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {
namespace {

using platform::IsImported;
using platform::IsRegistryFile;
using platform::RegistryRoot;
using platform::RegistryValue;

constexpr const char* kKey = "Software\\Ordwell\\MindloftImportTest";
constexpr const char* kHeader = "Windows Registry Editor Version 5.00\r\n\r\n";

class RegistryImportTest : public testing::Test {
 protected:
  RegistryImportTest() {
    wxSetEnv("XDG_CONFIG_HOME", (folder_ / "config").string());
    system_ = platform::SystemRegistry();
  }
  ~RegistryImportTest() override {
    for (const auto root : {RegistryRoot::CurrentUser, RegistryRoot::LocalMachine})
      system_->DeleteKey(root, kKey);
    wxUnsetEnv("XDG_CONFIG_HOME");
  }

  /// UTF-16 with its mark, as the system's editor writes it.
  std::filesystem::path Write(const std::string& name, const std::string& text) const {
    const auto file = folder_ / name;
    std::ofstream stream(file, std::ios::binary);
    stream << "\xFF\xFE";
    for (const char16_t unit : platform::Utf16FromUtf8(text)) {
      stream << static_cast<char>(unit & 0xFF) << static_cast<char>(unit >> 8);
    }
    return file;
  }

  static std::string Both(const std::string& value) {
    return std::string(kHeader) + "[HKEY_CURRENT_USER\\" + kKey + "]\r\n\"Langue\"=\"" + value +
           "\"\r\n\"Number\"=dword:0000002a\r\n\r\n[HKEY_LOCAL_MACHINE\\" + kKey + "]\r\n@=\"caption " +
           value + "\"\r\n\r\n";
  }

  static void Import(platform::RegistryStore& store, const std::filesystem::path& file) {
    const auto import = store.Import(file);
    WaitFor([&] { return !import->IsRunning(); }, "the end of the import");
  }

  TemporaryFolder folder_;
  std::shared_ptr<platform::RegistryStore> system_;
};

TEST_F(RegistryImportTest, TheSystemsRegistryTakesAFileWithTheSystemsEditor) {
  for (const std::string value : {"1033", "2052 \xE7\xAE\xA1\xE7\x90\x86 \xD8\xB9"}) {
    const auto file = Write("with blank & more.reg", Both(value));
    EXPECT_FALSE(IsImported(file, RegistryRoot::CurrentUser, *system_));
    EXPECT_FALSE(IsImported(file, RegistryRoot::LocalMachine, *system_));
    Import(*system_, file);
    EXPECT_TRUE(IsImported(file, RegistryRoot::CurrentUser, *system_));
    EXPECT_TRUE(IsImported(file, RegistryRoot::LocalMachine, *system_));
    EXPECT_EQ(system_->Get(RegistryRoot::CurrentUser, kKey, "Langue"), RegistryValue(value));
    EXPECT_EQ(system_->Get(RegistryRoot::LocalMachine, kKey, ""), RegistryValue("caption " + value));
  }
}

TEST_F(RegistryImportTest, OurOwnReaderRefusesADamagedFileWhole) {
  const auto store = platform::MemoryRegistry();
  store->Set(RegistryRoot::CurrentUser, kKey, "Langue", std::string("old"));
  const std::string whole = Both("new");
  for (const std::string& text :
       {std::string("garbage"), whole.substr(0, whole.size() - 10), whole + "\"half", whole.substr(10)}) {
    const auto file = Write("damaged.reg", text);
    EXPECT_FALSE(IsRegistryFile(file)) << text;
    EXPECT_FALSE(IsImported(file, RegistryRoot::CurrentUser, *store)) << text;
    EXPECT_THROW(store->Import(file), Error) << text;
    EXPECT_EQ(store->Get(RegistryRoot::CurrentUser, kKey, "Langue"), RegistryValue(std::string("old")));
  }
  EXPECT_THROW(store->Import(folder_ / "missing.reg"), Error);
  EXPECT_FALSE(IsRegistryFile(folder_ / "missing.reg"));
  EXPECT_FALSE(IsImported(folder_ / "missing.reg", RegistryRoot::CurrentUser, *store));
  Import(*store, Write("whole.reg", whole));
  EXPECT_EQ(store->Get(RegistryRoot::CurrentUser, kKey, "Langue"), RegistryValue(std::string("new")));
}

}  // namespace
}  // namespace mindloft::test
