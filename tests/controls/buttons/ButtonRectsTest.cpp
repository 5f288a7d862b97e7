#include <gtest/gtest.h>

#include "controls/buttons/ButtonLook.h"
#include "controls/buttons/ButtonRects.h"
#include "controls/buttons/CharacterPlace.h"

namespace mindloft::test {

namespace {

constexpr int kGap = 5;

ButtonContent Content(std::int16_t picturePosition, std::int16_t captionPosition = CaptionPosition::Middle) {
  return {{30, 20}, {50, 10}, kGap, picturePosition, captionPosition};
}

}  // namespace

TEST(ButtonRectsTest, PlaceThePictureOnEachSideOfTheCaption) {
  const wxRect inside(10, 10, 185, 75);
  const struct {
    std::int16_t position;
    wxRect picture, caption, mirroredPicture;
  } cases[] = {
      {PicturePosition::Left, {60, 37, 30, 20}, {95, 42, 50, 10}, {115, 37, 30, 20}},
      {PicturePosition::Right, {115, 37, 30, 20}, {60, 42, 50, 10}, {60, 37, 30, 20}},
      {PicturePosition::Top, {87, 30, 30, 20}, {77, 55, 50, 10}, {88, 30, 30, 20}},
      {PicturePosition::Bottom, {87, 45, 30, 20}, {77, 30, 50, 10}, {88, 45, 30, 20}},
      {77, {60, 37, 30, 20}, {95, 42, 50, 10}, {115, 37, 30, 20}},
  };
  for (const auto& each : cases) {
    const ButtonRects rects = CalcRECTs(inside, Content(each.position), false);
    EXPECT_EQ(rects.picture, each.picture) << each.position;
    EXPECT_EQ(rects.caption, each.caption) << each.position;
    EXPECT_EQ(CalcRECTs(inside, Content(each.position), true).picture, each.mirroredPicture) << each.position;
  }
}

TEST(ButtonRectsTest, MoveBothTogether) {
  const wxRect inside(10, 10, 185, 75);
  const wxSize both(85, 20);
  const struct {
    std::int16_t position;
    wxPoint place;
  } cases[] = {{CaptionPosition::Middle, {60, 37}},
               {CaptionPosition::Left, {10, 37}},
               {CaptionPosition::Right, {110, 37}},
               {CaptionPosition::Top, {60, 10}},
               {CaptionPosition::Bottom, {60, 65}}};
  for (const auto& each : cases) {
    const ButtonRects rects = CalcRECTs(inside, Content(PicturePosition::Left, each.position), false);
    wxRect united = rects.picture;
    united.Union(rects.caption);
    EXPECT_EQ(united, wxRect(each.place, both)) << each.position;
  }
}

TEST(ButtonRectsTest, TheCaptionGetsTheRoomThatIsLeft) {
  const wxRect narrow(0, 0, 60, 40);
  const ButtonRects beside = CalcRECTs(narrow, Content(PicturePosition::Left), false);
  EXPECT_EQ(beside.picture, wxRect(0, 10, 30, 20));
  EXPECT_EQ(beside.caption, wxRect(35, 15, 25, 10));
  EXPECT_EQ(CalcRECTs({0, 0, 20, 40}, Content(PicturePosition::Left), false).caption.width, 0);
  EXPECT_EQ(CalcRECTs({0, 0, 40, 40}, Content(PicturePosition::Top), false).caption.width, 40);

  ButtonContent alone = Content(PicturePosition::Left);
  alone.picture = {0, 0};
  EXPECT_EQ(alone.Size(), wxSize(50, 10)) << "no gap without a picture";
  EXPECT_EQ(CalcRECTs(narrow, alone, false).caption, wxRect(5, 15, 50, 10));
}

TEST(ButtonRectsTest, AccessKeysAreUnderlinedWhereTheyStand) {
  // Every character is ten wide.
  const auto width = [](const wxString& text) { return static_cast<int>(text.length()) * 10; };
  const wxString arabic = wxString::FromUTF8("\u062D\u0641\u0638");
  const struct {
    wxString line;
    std::size_t index;
    int leftToRight, rightToLeft;
  } cases[] = {
      {"Save it", 5, 50, 50},        // one part, whatever is around it
      {arabic, 0, 20, 20},           // the first letter at the right
      {arabic + " (S)", 5, 50, 10},  // the Latin key in brackets behind the text
      {"ab " + arabic, 1, 10, 50},   // the Latin part at the line's beginning
      {"ab " + arabic, 3, 50, 20},
  };
  for (const auto& each : cases) {
    EXPECT_EQ(PlaceOfCharacter(each.line, each.index, false, width).left, each.leftToRight) << each.line;
    EXPECT_EQ(PlaceOfCharacter(each.line, each.index, true, width).left, each.rightToLeft) << each.line;
    EXPECT_EQ(PlaceOfCharacter(each.line, each.index, true, width).width, 10) << each.line;
  }
}

}  // namespace mindloft::test
