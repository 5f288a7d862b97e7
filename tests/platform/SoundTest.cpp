#include <gtest/gtest.h>

#include <fstream>

#include "platform/Paths.h"
#include "platform/ui/Sound.h"
#include "tests/support/TemporaryFolder.h"

namespace mindloft::platform {

TEST(SoundTest, NamesAreFoundBesideTheProgram) {
  const auto file = ResourceFolder() / "over.wav";
  ASSERT_TRUE(std::filesystem::exists(file)) << "the build puts the sounds there";
  for (const char* name : {".\\resources\\over.wav", "./resources/over.wav", "resources\\over.wav",
                           "resources/../resources/over.wav"})
    EXPECT_EQ(FindSound(name), file) << name;
  EXPECT_EQ(FindSound(PathToUtf8(file)), file);
  EXPECT_EQ(FindSound(".\\resources\\nosuch.wav"), PathFromUtf8("resources/nosuch.wav").make_preferred());
}

TEST(SoundTest, WhatIsNoSoundIsSilent) {
  mindloft::test::TemporaryFolder folder;
  const auto text = folder / "text.wav";
  std::ofstream(text) << "this is no wave file";
  EXPECT_FALSE(PlaySoundFile(PathToUtf8(text)));
  EXPECT_FALSE(PlaySoundFile(PathToUtf8(folder / "missing.wav")));
  EXPECT_FALSE(PlaySoundFile(""));
  EXPECT_FALSE(PlaySoundFile(".\\resources\\missing.wav"));
}

}  // namespace mindloft::platform
