#include <gtest/gtest.h>

#include <fstream>

#include "platform/Paths.h"
#include "platform/ui/Sound.h"
#include "tests/support/TemporaryFolder.h"

namespace mindloft::platform {

// The other system says that it plays what it has not looked for yet.
TEST(SilentSoundTest, WhatIsNoSoundIsNotPlayed) {
  mindloft::test::TemporaryFolder folder;
  const auto text = folder / "text.wav";
  std::ofstream(text) << "this is no wave file";
  for (const auto& name :
       {PathToUtf8(text), PathToUtf8(folder / "missing.wav"), std::string(".\\resources\\missing.wav")})
    EXPECT_FALSE(PlaySoundFile(name)) << name;
}

}  // namespace mindloft::platform
