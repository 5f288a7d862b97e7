#include <gmock/gmock.h>
#include <wx/utils.h>

#include <cstdlib>
#include <fstream>
#include <functional>

#include "backend/errors/Error.h"
#include "platform/Paths.h"
#include "platform/Random.h"
#include "platform/RegistryStore.h"
#include "tests/support/TemporaryFolder.h"

namespace mindloft::test {
namespace {

using platform::OtherRegistryType;
using platform::RegistryRoot;
using platform::RegistryStore;
using platform::RegistryValue;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::UnorderedElementsAre;

constexpr auto User = RegistryRoot::CurrentUser;
constexpr auto Machine = RegistryRoot::LocalMachine;

enum class Kind { Memory, File, System };

bool IsWindows() {
  return (wxGetOsVersion() & wxOS_WINDOWS) != 0;
}

/// What every registry promises, asked of each of them.
class RegistryContract : public testing::TestWithParam<Kind> {
 protected:
  RegistryContract() {
    wxSetEnv("XDG_CONFIG_HOME", (folder_ / "config").string());
    wxSetEnv("XDG_CONFIG_DIRS", (folder_ / "etc").string());
    store_ = Open();
    char suffix[20];
    std::snprintf(suffix, sizeof suffix, "%08x",
                  static_cast<unsigned>(std::hash<std::string>()(folder_.Path().string())));
    key_ = std::string("Software\\Ordwell\\MindloftTest-") + suffix;
  }
  ~RegistryContract() override {
    store_->DeleteKey(User, key_);
    wxUnsetEnv("XDG_CONFIG_HOME");
    wxUnsetEnv("XDG_CONFIG_DIRS");
  }

  std::shared_ptr<RegistryStore> Open() const {
    switch (GetParam()) {
      case Kind::Memory:
        return store_ ? store_ : platform::MemoryRegistry();
      case Kind::File:
        return platform::FileRegistry(folder_ / "registry");
      default:
        return platform::SystemRegistry();
    }
  }

  /// Read through another object, as the next start of the program does.
  std::optional<RegistryValue> Reread(const std::string& name) const { return Open()->Get(User, key_, name); }

  TemporaryFolder folder_;
  std::shared_ptr<RegistryStore> store_;
  std::string key_;
};

TEST_P(RegistryContract, KeepsEveryValueAsItWas) {
  std::string control(
      "a\tb\r\nc\x01\x7F"
      "d\0e",
      11);
  const std::pair<const char*, RegistryValue> values[] = {
      {"empty", ""},
      {"", "the default value"},
      {"quoted \"\\\" = name", "with \"quotes\" and \\back\\slashes\\"},
      {"scripts", "知识域 نطاق المعرفة 😀 Ölkännchen"},
      {"control", control},
      {"like a line", "\"x\"=dword:1"},
      {"blank ", "  blanks  "},
      {"long", std::string(1 << 20, 'x') + "é"},
      {"zero", 0u},
      {"largest", 0xFFFFFFFFu},
      {"other", OtherRegistryType()},
  };
  for (const auto& [name, value] : values) store_->Set(User, key_, name, value);
  for (const auto& [name, value] : values) EXPECT_EQ(Reread(name), value) << name;
  EXPECT_EQ(Open()->Values(User, key_).size(), std::size(values));
}

TEST_P(RegistryContract, ReplacesBrokenBytesAndEndsTextsBeforeNuls) {
  store_->Set(User, key_, "broken", "a\xFF\xC3");
  store_->Set(User, key_, "ended", std::string("a\0\0", 3));
  EXPECT_EQ(Reread("broken"), RegistryValue("a\uFFFD\uFFFD"));
  EXPECT_EQ(Reread("ended"), RegistryValue("a"));
}

TEST_P(RegistryContract, FindsKeysAndNamesInAnyCaseAndSpelling) {
  store_->Set(User, key_ + "\\Älter", "Größe", 1u);
  store_->Set(User, "\\" + key_ + "\\\\äLTER\\", "gRÖßE", 2u);
  EXPECT_THAT(Open()->Values(User, key_ + "\\ÄLTER"), ElementsAre(Pair("Größe", RegistryValue(2u))));
  EXPECT_THAT(Open()->Values(User, key_), IsEmpty());
  store_->Delete(User, key_ + "\\älter", "GRÖßE");
  EXPECT_THAT(Open()->Values(User, key_ + "\\Älter"), IsEmpty());
}

TEST_P(RegistryContract, ChangesTypesAndDeletes) {
  store_->Set(User, key_, "a", "text");
  store_->Set(User, key_, "a", 42u);
  EXPECT_EQ(Reread("a"), RegistryValue(42u));
  store_->Set(User, key_ + "\\Sub\\Deeper", "b", 1u);
  store_->Set(User, key_ + "Beside", "c", 3u);
  store_->Delete(User, key_, "absent");
  store_->Delete(User, key_ + "\\absent", "absent");
  store_->DeleteKey(User, key_);
  store_->DeleteKey(User, key_);
  EXPECT_FALSE(Reread("a"));
  EXPECT_FALSE(Open()->Get(User, key_ + "\\Sub\\Deeper", "b"));
  EXPECT_EQ(Open()->Get(User, key_ + "Beside", "c"), RegistryValue(3u))
      << "a key whose name only begins alike";
  store_->DeleteKey(User, key_ + "Beside");
}

TEST_P(RegistryContract, RefusesNamesThatCannotBeKept) {
  const std::function<void()> refused[] = {
      [&] { store_->Set(User, key_ + "\\a\nb", "x", 1u); },
      [&] { store_->Set(User, key_, "a\nb", 1u); },
      [&] { store_->DeleteKey(User, ""); },
      [&] { store_->DeleteKey(User, "\\\\"); },
  };
  for (const auto& action : refused) {
    try {
      action();
      ADD_FAILURE() << "taken";
    } catch (const Error& error) {
      EXPECT_EQ(error.Number(), ErrorNumber::Registry);
    }
  }
  EXPECT_FALSE(store_->Get(User, "no\nsuch", "a\nb"));
  EXPECT_THAT(store_->Values(User, "no\nsuch"), IsEmpty());
}

TEST_P(RegistryContract, HoldsManyValuesInOrder) {
  // A file registry writes its whole file for each one.
  bool isFile = GetParam() == Kind::File || (GetParam() == Kind::System && !IsWindows());
  const int count = isFile ? 200 : 5000;
  for (int i = 0; i < count; ++i)
    store_->Set(User, key_, "value" + std::to_string(i), "text " + std::to_string(i));
  auto values = Open()->Values(User, key_);
  ASSERT_EQ(values.size(), static_cast<std::size_t>(count));
  if (GetParam() == Kind::System && IsWindows()) return;  // its order is the system's own
  for (int i = 0; i < count; ++i)
    EXPECT_EQ(values[static_cast<std::size_t>(i)].first, "value" + std::to_string(i));
}

std::string KindName(const testing::TestParamInfo<Kind>& kind) {
  constexpr const char* Names[] = {"Memory", "File", "System"};
  return Names[static_cast<int>(kind.param)];
}
INSTANTIATE_TEST_SUITE_P(Every, RegistryContract, testing::Values(Kind::Memory, Kind::File, Kind::System),
                         KindName);

TEST(SystemRegistryFile, ReadsTheAdministratorsValuesBelowTheUsersOwn) {
  if (IsWindows()) GTEST_SKIP() << "Windows has a hive for them";
  TemporaryFolder folder;
  wxSetEnv("XDG_CONFIG_HOME", (folder / "home").string());
  wxSetEnv("XDG_CONFIG_DIRS", (folder / "etc").string());
  auto administrators = platform::FileRegistry(folder / "etc/mindloft/registry");
  administrators->Set(Machine, "Software\\X", "Both", 1u);
  administrators->Set(Machine, "Software\\X", "Only", 2u);
  administrators->Set(User, "Software\\X", "Only", 3u);
  auto store = platform::SystemRegistry();
  store->Set(Machine, "software\\x", "both", 9u);
  EXPECT_EQ(store->Get(Machine, "Software\\X", "Both"), RegistryValue(9u));
  EXPECT_EQ(store->Get(Machine, "Software\\X", "Only"), RegistryValue(2u));
  EXPECT_EQ(store->Get(User, "Software\\X", "Only"), std::nullopt);
  EXPECT_THAT(store->Values(Machine, "Software\\X"),
              UnorderedElementsAre(Pair("both", RegistryValue(9u)), Pair("Only", RegistryValue(2u))));
  EXPECT_TRUE(std::filesystem::exists(folder / "home/mindloft/registry"));
  wxUnsetEnv("XDG_CONFIG_HOME");
  wxUnsetEnv("XDG_CONFIG_DIRS");
}

}  // namespace
}  // namespace mindloft::test
