#include <gtest/gtest.h>

#include "platform/Paths.h"
#include "platform/ui/Sound.h"

namespace mindloft::platform {

TEST(SoundTest, NamesAreFoundBesideTheProgram) {
  const auto file = ResourceFolder() / "over.wav";
  ASSERT_TRUE(std::filesystem::exists(file)) << "the build puts the sounds there";
  for (const char* name : {".\\resources\\over.wav", "./resources/over.wav", "resources\\over.wav",
                           "resources/../resources/over.wav"})
    EXPECT_EQ(FindSound(name), file) << name;
  EXPECT_EQ(FindSound(PathToUtf8(file)), file);
  EXPECT_EQ(FindSound(".\\resources\\nosuch.wav"), PathFromUtf8("resources/nosuch.wav").make_preferred());
  EXPECT_TRUE(PlaySoundFile(".\\resources\\over.wav"));
  EXPECT_FALSE(PlaySoundFile(""));
}

}  // namespace mindloft::platform
