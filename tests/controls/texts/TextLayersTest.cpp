#include <gtest/gtest.h>

#include "controls/texts/TextLayers.h"

namespace mindloft::test {
namespace {

TEST(TextLayersTest, LieInsideEachOtherAsFarAsThereIsRoom) {
  struct Case {
    wxSize control;
    bool isThreeD;
    wxRect background, picture, box;
  };
  const Case cases[] = {
      {{1000, 300}, true, {0, 0, 1000, 300}, {8, 8, 970, 270}, {38, 38, 910, 210}},
      {{1000, 300}, false, {8, 8, 970, 270}, {16, 16, 940, 240}, {46, 46, 880, 180}},
      // Exactly as much as is taken off.
      {{30, 30}, false, {8, 8, 0, 0}, {16, 16, 7, 7}, {46, 46, 7, 7}},
      {{90, 90}, true, {0, 0, 90, 90}, {8, 8, 60, 60}, {38, 38, 0, 0}},
      // Less: each keeps what it had.
      {{29, 300}, false, {8, 8, 7, 270}, {16, 16, 7, 240}, {46, 46, 7, 180}},
      {{300, 29}, false, {8, 8, 270, 7}, {16, 16, 240, 7}, {46, 46, 180, 7}},
      {{20, 20}, true, {0, 0, 20, 20}, {8, 8, 7, 7}, {38, 38, 7, 7}},
      {{89, 89}, true, {0, 0, 89, 89}, {8, 8, 59, 59}, {38, 38, 7, 7}},
  };
  for (const Case& each : cases) {
    const wxRect before(0, 0, 7, 7);
    TextLayers layers{before, before, before};
    layers.Place(each.control, each.isThreeD);
    EXPECT_EQ(layers.background, each.background) << each.control.x << " x " << each.control.y;
    EXPECT_EQ(layers.picture, each.picture) << each.control.x << " x " << each.control.y;
    EXPECT_EQ(layers.box, each.box) << each.control.x << " x " << each.control.y;
  }
}

}  // namespace
}  // namespace mindloft::test
