#include <gmock/gmock.h>

#include <fstream>

#include "backend/errors/Error.h"
#include "platform/FileAccess.h"
#include "platform/RegistryStore.h"
#include "platform/registry/RegistryFileFormat.h"
#include "tests/platform/Child.h"
#include "tests/support/TemporaryFolder.h"

namespace mindloft::test {
namespace {

using platform::FileRegistry;
using platform::OtherRegistryType;
using platform::ReadWholeFile;
using platform::RegistryFileFormat;
using platform::RegistryRoot;
using platform::RegistryValue;

constexpr auto User = RegistryRoot::CurrentUser;
const std::string Header = "Windows Registry Editor Version 5.00\n";
const std::string Key = "[HKEY_CURRENT_USER\\Software\\A]\n";

void Write(const std::filesystem::path& file, const std::string& content) {
  std::ofstream(file, std::ios::binary) << content;
}

std::vector<std::filesystem::path> Aside(const TemporaryFolder& folder) {
  std::vector<std::filesystem::path> files;
  for (const auto& entry : std::filesystem::directory_iterator(folder.Path())) {
    if (entry.path().filename().string().starts_with("registry.damaged-")) files.push_back(entry.path());
  }
  return files;
}

std::string Utf16(const std::string& ascii) {
  std::string text = "\xFF\xFE";
  for (char c : ascii) text += {c, '\0'};
  return text;
}

TEST(RegistryFile, ReadsWhatEditorsExportAndWritesItBack) {
  const auto file = Header +
                    "\n[HKEY_CURRENT_USER\\Software\\A]\n"
                    "@=\"default\"\n"
                    "\"Text\"=\"C:\\\\folder \\\"x\\\"\"\n"
                    "\"Number\"=dword:0000002a\n"
                    "\"Binary\"=hex:01,02,ff\n"
                    "\"Expand\"=hex(2):25,00,41,00,25,00,00,00\n"
                    "\"Many\"=hex(7):61,00,00,00,62,00,00,00,00,00\n"
                    "\"Long\"=hex(b):01,00,00,00,00,00,00,00\n"
                    "\n[HKEY_LOCAL_MACHINE\\SOFTWARE\\B]\n"
                    "\"Number\"=dword:00000001\n";
  const auto wrapped = "\xEF\xBB\xBF; a comment\r\n" + Header +
                       "[hkey_current_user\\Software\\A]\r\n\"Binary\"=hex:01,\\\r\n  02,ff\r\n";
  auto content = RegistryFileFormat::Parse(file);
  EXPECT_FALSE(content.IsDamaged());
  auto tree = RegistryFileFormat::Tree(content);
  EXPECT_EQ(tree.Get(User, "software\\a", ""), RegistryValue("default"));
  EXPECT_EQ(tree.Get(User, "software\\a", "text"), RegistryValue("C:\\folder \"x\""));
  EXPECT_EQ(tree.Get(User, "software\\a", "number"), RegistryValue(42u));
  EXPECT_EQ(tree.Get(User, "software\\a", "expand"), RegistryValue("%A%"));
  for (const char* name : {"Binary", "Many", "Long"}) {
    EXPECT_EQ(tree.Get(User, "software\\a", name), RegistryValue(OtherRegistryType())) << name;
  }
  EXPECT_EQ(tree.Get(RegistryRoot::LocalMachine, "Software\\B", "Number"), RegistryValue(1u));
  EXPECT_EQ(RegistryFileFormat::Write(tree), file);
  auto again = RegistryFileFormat::Parse(wrapped);
  EXPECT_FALSE(again.IsDamaged());
  EXPECT_NE(RegistryFileFormat::Write(RegistryFileFormat::Tree(again)).find("\"Binary\"=hex:01,02,ff\n"),
            std::string::npos);
  EXPECT_EQ(RegistryFileFormat::Write(RegistryFileFormat::Tree(RegistryFileFormat::Parse(Utf16(file)))),
            file);
}

TEST(RegistryFile, ImportsAndDeletesInTheFilesOrder) {
  auto store = platform::MemoryRegistry();
  store->Set(User, "Old\\Sub", "x", 1u);
  store->Set(User, "Software\\A", "gone", 1u);
  auto content =
      RegistryFileFormat::Parse(Header + "[-HKEY_CURRENT_USER\\Old]\n" + Key + "\"gone\"=-\n\"new\"=\"n\"\n");
  EXPECT_FALSE(content.IsDamaged());
  RegistryFileFormat::Import(content, *store);
  EXPECT_FALSE(store->Get(User, "Old\\Sub", "x"));
  EXPECT_FALSE(store->Get(User, "Software\\A", "gone"));
  EXPECT_EQ(store->Get(User, "Software\\A", "new"), RegistryValue("n"));
}

TEST(RegistryFile, UsesTheReadablePartOfADamagedFileAndKeepsTheWhole) {
  const std::string good = Key + "\"good\"=dword:00000007\n";
  const std::string damaged[] = {
      good,  // without its first line
      Header + good + "\"cut off\"=\"te",
      Header + good + "\"no end",
      Header + good + "\"number\"=dword:zz\n",
      Header + good + "\"long number\"=dword:000000001\n",
      Header + good + "\"bytes\"=hex:0g\n",
      Header + good + "\"bytes\"=hex:01,\n",
      Header + good + "\"type\"=hex(1:00\n",
      Header + good + "\"escape\"=\"a\\n\"\n",
      Header + good + "\"after\"=\"a\"b\n",
      Header + good + "\"broken\"=\"\xFF\"\n",
      Header + good + std::string("\"zeros\"=\"\0\0\"\n", 13),
      Header + good + "[HKEY_USERS\\Other]\n\"x\"=\"y\"\n",
      Header + "\"before any key\"=\"x\"\n" + good,
      Header + good + "[-HKEY_CURRENT_USER\\\\]\n",
      Header + good + "[HKEY_CURRENT_USER\\Sof",
      Header + good + "[HKEY_CURRENT_USER\\Tab\there]\n\"x\"=\"y\"\n",
      Header + good + "\"tab\there\"=\"y\"\n",
      std::string(4096, '\0') + "\n" + good,
  };
  for (const auto& content : damaged) {
    SCOPED_TRACE(content);
    TemporaryFolder folder;
    Write(folder / "registry", content);
    auto store = FileRegistry(folder / "registry");
    EXPECT_EQ(store->Get(User, "Software\\A", "good"), RegistryValue(7u));
    EXPECT_TRUE(Aside(folder).empty()) << "reading changes nothing";
    store->Set(User, "Software\\A", "more", 8u);
    store->Set(User, "Software\\A", "even more", 9u);
    auto aside = Aside(folder);
    ASSERT_EQ(aside.size(), 1u);
    EXPECT_EQ(ReadWholeFile(aside[0]), content);
    auto repaired = FileRegistry(folder / "registry");
    EXPECT_EQ(repaired->Get(User, "Software\\A", "good"), RegistryValue(7u));
    EXPECT_EQ(repaired->Get(User, "Software\\A", "more"), RegistryValue(8u));
    EXPECT_FALSE(RegistryFileFormat::Parse(*ReadWholeFile(folder / "registry")).IsDamaged());
  }
}

TEST(RegistryFile, FailsWithARegistryErrorAndKeepsTheOldFile) {
  TemporaryFolder folder;
  std::filesystem::create_directories(folder / "directory" / "inside");
  Write(folder / "file", "x");
  for (const auto& place : {folder / "directory", folder / "file" / "registry"}) {
    SCOPED_TRACE(place.string());
    auto store = FileRegistry(place);
    EXPECT_FALSE(store->Get(User, "a", "b"));
    EXPECT_TRUE(store->Values(User, "a").empty());
    try {
      store->Set(User, "a", "b", 1u);
      ADD_FAILURE() << "written";
    } catch (const Error& error) {
      EXPECT_EQ(error.Number(), ErrorNumber::Registry);
      EXPECT_FALSE(error.Description().empty());
    }
    EXPECT_FALSE(store->Get(User, "a", "b")) << "what is not in the file is not there";
  }
  EXPECT_TRUE(std::filesystem::is_directory(folder / "directory" / "inside"));
  EXPECT_EQ(ReadWholeFile(folder / "file"), "x");
}

TEST(RegistryFile, TwoProcessesLoseNoneOfEachOthersValues) {
  TemporaryFolder folder;
  auto file = (folder / "registry").string();
  {
    Child first({"registry", file, "first", "500"});
    Child second({"registry", file, "second", "500"});
    EXPECT_EQ(first.Wait(), 0);
    EXPECT_EQ(second.Wait(), 0);
  }
  auto store = FileRegistry(folder / "registry");
  EXPECT_EQ(store->Values(User, "Software\\Both").size(), 1000u);
  for (std::uint32_t i = 0; i < 500; ++i) {
    ASSERT_EQ(store->Get(User, "Software\\Both", "first" + std::to_string(i)), RegistryValue(i));
    ASSERT_EQ(store->Get(User, "Software\\Both", "second" + std::to_string(i)), RegistryValue(i));
  }
  for (const auto& entry : std::filesystem::directory_iterator(folder.Path())) {
    EXPECT_THAT(entry.path().filename().string(), testing::AnyOf("registry", "registry.lock"));
  }
}

}  // namespace
}  // namespace mindloft::test
