#include <gmock/gmock.h>

#include "backend/errors/Error.h"
#include "platform/FileAccess.h"
#include "platform/RegistryStore.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/linux/SmallDisk.h"

namespace mindloft::test {
namespace {

constexpr auto User = platform::RegistryRoot::CurrentUser;

TEST(SmallDiskTest, TheOldFileStaysWhole) {
  TemporaryFolder folder;
  const auto file = folder / "registry";
  auto store = platform::FileRegistry(file);
  store->Set(User, "Software\\A", "kept", "value");
  const auto old = platform::ReadWholeFile(file);
  const std::string big(10'000, 'x');
  for (std::uint64_t size : {std::uint64_t{0}, std::uint64_t{old->size()}, std::uint64_t{5000}}) {
    SCOPED_TRACE(size);
    auto registry = ErrorNumber::Unexpected, whole = ErrorNumber::Unexpected;
    std::string told;
    {
      SmallDisk disk(size);
      try {
        store->Set(User, "Software\\A", "big", big);
      } catch (const Error& error) {
        registry = error.Number();
        told = error.Description();
      }
      try {
        platform::ReplaceWholeFile(file, big);
      } catch (const Error& error) {
        whole = error.Number();
      }
    }
    EXPECT_EQ(registry, ErrorNumber::Registry);
    EXPECT_THAT(told, testing::HasSubstr(file.string()));
    EXPECT_EQ(whole, ErrorNumber::DiskFull);
    EXPECT_EQ(platform::ReadWholeFile(file), old);
    EXPECT_EQ(store->Get(User, "Software\\A", "kept"), platform::RegistryValue("value"));
    EXPECT_FALSE(store->Get(User, "Software\\A", "big")) << "what is not in the file is not there";
    for (const auto& entry : std::filesystem::directory_iterator(folder.Path())) {
      EXPECT_THAT(entry.path().filename().string(), testing::AnyOf("registry", "registry.lock"));
    }
  }
  store->Set(User, "Software\\A", "big", big);
  EXPECT_EQ(platform::FileRegistry(file)->Get(User, "Software\\A", "big"), platform::RegistryValue(big));
}

}  // namespace
}  // namespace mindloft::test
