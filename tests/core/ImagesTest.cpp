#include <gtest/gtest.h>
#include <wx/image.h>

#include <cstring>

#include "core/forms/Images.h"
#include "tests/support/gui/PrivateServices.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {
namespace {

using ImagesTest = PrivateServices;

bool Same(const wxBitmap& a, const wxBitmap& b) {
  const wxImage x = a.ConvertToImage(), y = b.ConvertToImage();
  if (!x.IsOk() || !y.IsOk() || x.GetSize() != y.GetSize() || !x.HasAlpha() || !y.HasAlpha()) return false;
  const auto pixels = static_cast<std::size_t>(x.GetWidth()) * static_cast<std::size_t>(x.GetHeight());
  return std::memcmp(x.GetData(), y.GetData(), 3 * pixels) == 0 &&
         std::memcmp(x.GetAlpha(), y.GetAlpha(), pixels) == 0;
}

TEST_F(ImagesTest, DrawnBesideTheyAreTheSame) {
  constexpr double kScale = 1.5;
  const auto bitmap = [](int size) {
    const auto image = LoadImage("user", size);
    return image.GetBitmap(image.GetPreferredBitmapSizeAtScale(kScale));
  };
  const wxBitmap before = bitmap(20);
  ASSERT_EQ(before.GetSize(), wxSize(30, 30));
  BeginDrawingImages({{"user", 20}, {"user", 16}, {"no such drawing", 16}}, kScale);
  EXPECT_TRUE(Same(bitmap(20), before)) << "not finished, perhaps";
  // A finished drawing is shared.
  WaitFor([] { return LoadImage("user", 20).IsSameAs(LoadImage("user", 20)); }, "the drawings");
  EXPECT_TRUE(Same(bitmap(20), before));
  EXPECT_EQ(bitmap(16).GetSize(), wxSize(24, 24));
  EXPECT_FALSE(LoadImage("no such drawing").IsOk());
}

}  // namespace
}  // namespace mindloft::test
