#include "app/EarlyLogin.h"
#include "backend/errors/Error.h"
#include "tests/app/StartFixture.h"

namespace mindloft::test {
namespace {

using EarlyLoginTest = StartFixture;

TEST_F(EarlyLoginTest, GivesTheDirectoryOutOnceAndOpensItAnewForOthers) {
  MakeDirectory();
  for (const char* enabled : {"1", "0", "broken"}) {
    SetAutoLogin(enabled);
    EarlyLogin early(file_);
    const auto first = early.Open(), second = early.Open();
    EXPECT_NE(first, second) << enabled;
    EXPECT_NE(first->Login(kUser, kPassword), 0u) << enabled;
    EXPECT_NE(second->Login(kUser, kPassword), 0u) << enabled;
  }
}

TEST_F(EarlyLoginTest, TellsTheFailureToWhoOpensTheDirectory) {
  SetAutoLogin("1");
  EarlyLogin early(file_);
  try {
    early.Open();
    FAIL() << "there is no directory";
  } catch (const Error& error) {
    EXPECT_EQ(error.Number(), ErrorNumber::DirectoryNotFound);
  }
}

TEST_F(EarlyLoginTest, ChangesNothingWhenNobodyAsksForIt) {
  MakeDirectory();
  SetAutoLogin("1");
  const auto before = std::filesystem::last_write_time(file_);
  { const EarlyLogin early(file_); }
  EXPECT_EQ(std::filesystem::last_write_time(file_), before);
}

}  // namespace
}  // namespace mindloft::test
