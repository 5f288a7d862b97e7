#include <gmock/gmock.h>
#include <wx/utils.h>

#include "platform/SecretStore.h"
#include "tests/support/TemporaryFolder.h"

namespace mindloft::test {
namespace {

using testing::HasSubstr;
using testing::Not;

const std::string kSecret = "pass \xF0\x9F\x94\x91 \"word\\ \x01 that nobody else reads";

/// What every store of secrets promises.
void KeepsPromises(platform::SecretStore& store, const std::string& scheme) {
  const auto token = store.Protect(kSecret);
  EXPECT_TRUE(token.starts_with(scheme)) << token;
  EXPECT_THAT(token, Not(HasSubstr("nobody")));
  EXPECT_EQ(token.find_first_not_of("0123456789abcdefghijklmnopqrstuvwxyz:"), std::string::npos) << token;
  EXPECT_EQ(store.Reveal(token), kSecret);
  const auto other = store.Protect("");
  EXPECT_NE(other, token);
  EXPECT_EQ(store.Reveal(other), "");
  for (const std::string& damaged :
       {std::string(), scheme, token.substr(0, token.size() - 2), token + "x", "else:" + token,
        scheme + std::string(32, 'z'), scheme + "../../../../etc/passwd"}) {
    EXPECT_EQ(store.Reveal(damaged), std::nullopt) << damaged;
    store.Forget(damaged);
  }
  EXPECT_EQ(store.Reveal(token), kSecret);
  store.Forget(token);
  store.Forget(other);
}

TEST(SecretStoreTest, AFileOfItsOwnForEachSecret) {
  const TemporaryFolder folder;
  auto store = platform::FileSecretStore(folder / "deep" / "secrets");
  KeepsPromises(*store, "file:");
  const auto token = store->Protect(kSecret);
  EXPECT_EQ(platform::FileSecretStore(folder / "deep" / "secrets")->Reveal(token), kSecret) << "next start";
  EXPECT_EQ(platform::FileSecretStore(folder / "other")->Reveal(token), std::nullopt);
  store->Forget(token);
  EXPECT_EQ(store->Reveal(token), std::nullopt);
}

TEST(SecretStoreTest, TheSystemsOwn) {
  const TemporaryFolder folder;
  // Without a session of a desktop there is no secret service.
  wxSetEnv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + (folder / "no-bus").string());
  wxSetEnv("XDG_CONFIG_HOME", (folder / "config").string());
  const bool windows = (wxGetOsVersion() & wxOS_WINDOWS) != 0;
  KeepsPromises(*platform::SystemSecretStore(), windows ? "dpapi:" : "file:");
  wxUnsetEnv("XDG_CONFIG_HOME");
  wxUnsetEnv("DBUS_SESSION_BUS_ADDRESS");
}

TEST(SecretStoreTest, HexadecimalDigits) {
  const std::string bytes("\0\x7f\xff\x10 a", 6);
  EXPECT_EQ(platform::HexText(bytes), "007fff102061");
  EXPECT_EQ(platform::HexBytes("007fff102061"), bytes);
  EXPECT_EQ(platform::HexBytes("0"), std::nullopt);
  EXPECT_EQ(platform::HexBytes("0g"), std::nullopt);
  EXPECT_EQ(platform::HexBytes("-1"), std::nullopt);
}

}  // namespace
}  // namespace mindloft::test
