#include <wx/dcmemory.h>

#include "controls/buttons/ButtonFace.h"
#include "tests/controls/buttons/ButtonFixture.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {

namespace {

constexpr ControlColour kRed{0x000000FF};
constexpr ControlColour kGreen{0x0000FF00};
constexpr ControlColour kBlue{0x00FF0000};

wxColour At(const wxImage& image, int x, int y) {
  return {image.GetRed(x, y), image.GetGreen(x, y), image.GetBlue(x, y)};
}

/// The places in which the two differ; empty when they do not.
wxRect Difference(const wxImage& one, const wxImage& other) {
  wxRect all;
  for (int y = 0; y < one.GetHeight(); ++y) {
    for (int x = 0; x < one.GetWidth(); ++x) {
      if (At(one, x, y) != At(other, x, y)) all.Union(wxRect(x, y, 1, 1));
    }
  }
  return all;
}

}  // namespace

class MyButtonFaceTest : public ButtonFixture {
 protected:
  wxImage Draw(const ButtonState& state, wxSize size = {120, 60}) {
    wxBitmap bitmap(size, 24);
    {
      wxMemoryDC dc(bitmap);
      ButtonFace(*button_, look_, state).Draw(dc, size);
    }
    return bitmap.ConvertToImage();
  }
  ButtonState State(bool ButtonState::*one = nullptr, bool value = true) {
    ButtonState state;
    if (one) state.*one = value;
    return state;
  }

  ButtonLook look_;
};

TEST_F(MyButtonFaceTest, EveryStateIsSeen) {
  look_.caption = "&Save";
  look_.picture = ControlPicture("user");
  for (const std::int16_t flat : {0, 1}) {
    look_.xpStyle = flat;
    std::vector<wxImage> faces{Draw(State()),
                               Draw(State(&ButtonState::hovering)),
                               Draw(State(&ButtonState::pressed)),
                               Draw(State(&ButtonState::focused)),
                               Draw(State(&ButtonState::enabled, false)),
                               Draw(State(&ButtonState::isDefault))};
    look_.raised = 1;
    faces.push_back(Draw(State()));
    look_.raised = 0;
    look_.borderEdged = 1;
    look_.borderEdgedColor = kRed;
    faces.push_back(Draw(State()));
    look_.borderEdged = 0;
    for (std::size_t one = 0; one < faces.size(); ++one) {
      for (std::size_t other = one + 1; other < faces.size(); ++other) {
        // Raised looks as hovered does: that is what hovering is.
        if (one == 1 && other == 6) continue;
        EXPECT_FALSE(AreEqual(faces[one], faces[other])) << flat << ": " << one << " and " << other;
      }
    }
  }
}

TEST_F(MyButtonFaceTest, TheFlatStyleIsFilledWithItsColours) {
  look_.xpStyle = 1;
  look_.backColor = kBlue;
  look_.xpColorHover = kGreen;
  look_.xpColorPressed = kRed;
  for (const bool own : {true, false}) {
    look_.xpDefaultColors = own ? 0 : 1;
    EXPECT_EQ(At(Draw(State()), 20, 20), kBlue.Resolve());
    EXPECT_EQ(At(Draw(State(&ButtonState::hovering)), 20, 20) == kGreen.Resolve(), own);
    EXPECT_EQ(At(Draw(State(&ButtonState::pressed)), 20, 20) == kRed.Resolve(), own);
  }
  look_.xpDefaultColors = 0;
  ButtonState disabled = State(&ButtonState::hovering);
  disabled.enabled = false;
  EXPECT_EQ(At(Draw(disabled), 20, 20), kBlue.Resolve()) << "a disabled button does not react";
}

TEST_F(MyButtonFaceTest, TheEdgesHaveTheSystemsColours) {
  const auto corners = [this](const ButtonState& state) {
    const wxImage face = Draw(state);
    return std::pair(At(face, 1, 30), At(face, 118, 30));
  };
  EXPECT_EQ(corners(State(&ButtonState::hovering)), std::pair(k3DHighlightColour.Resolve(), DarkShadow()));
  EXPECT_EQ(corners(State(&ButtonState::pressed)), std::pair(DarkShadow(), k3DHighlightColour.Resolve()));
  look_.backColor = kGreen;
  look_.borderEdged = 1;
  look_.borderEdgedColor = kRed;
  EXPECT_EQ(corners(State()), std::pair(kRed.Resolve(), kRed.Resolve()));
  EXPECT_EQ(At(Draw(State()), 0, 30), kGreen.Resolve()) << "the place of the dark border";
}

TEST_F(MyButtonFaceTest, FocusShowsWhatItIsToldTo) {
  look_.backColor = kGreen;
  const wxImage idle = Draw(State());
  const ButtonState focused = State(&ButtonState::focused);
  look_.showBorderOnFocus = false;
  const wxRect rectangle = Difference(idle, Draw(focused));
  EXPECT_GE(rectangle.x, 3) << "the rectangle stands inside the face";
  EXPECT_LE(rectangle.GetRight(), 116);
  look_.showFocusRect = false;
  EXPECT_TRUE(AreEqual(idle, Draw(focused)));
  look_.showBorderOnFocus = true;
  EXPECT_EQ(Difference(idle, Draw(focused)), wxRect(0, 0, 120, 60));
}

TEST_F(MyButtonFaceTest, NothingIsDrawnOverTheBorders) {
  look_.backColor = kGreen;
  look_.caption =
      "A caption that is far too long for a button of this size\nand a second line\nand a third one";
  look_.picture = ControlPicture("user");
  for (const std::int16_t position : {PicturePosition::Left, PicturePosition::Top}) {
    look_.picturePosition = position;
    const wxImage face = Draw(State(&ButtonState::enabled, false), {60, 24});
    for (int x = 0; x < 60; ++x) EXPECT_EQ(At(face, x, 0), kGreen.Resolve());
    for (int y = 0; y < 24; ++y) EXPECT_EQ(At(face, 59, y), kGreen.Resolve());
  }
  for (const int edge : {1, 2, 5}) Draw(State(&ButtonState::focused), {edge, edge});
}

TEST_F(MyButtonFaceTest, RightToLeftIsTheOtherWayRound) {
  look_.backColor = kGreen;
  look_.picture = ControlPicture("user");
  look_.caption = "I";
  const wxImage leftward = Draw(State(&ButtonState::mirrored));
  const wxImage rightward = Draw(State());
  const auto middleOfPicture = [](const wxImage& face) {
    int left = face.GetWidth(), right = 0;
    for (int x = 0; x < face.GetWidth(); ++x) {
      for (int y = 0; y < face.GetHeight(); ++y) {
        const wxColour colour = At(face, x, y);
        if (colour.Blue() > 150 && colour.Green() < 200) left = std::min(left, x), right = std::max(right, x);
      }
    }
    return (left + right) / 2;
  };
  EXPECT_LT(middleOfPicture(rightward), 60);
  EXPECT_GT(middleOfPicture(leftward), 60);
}

TEST_F(MyButtonFaceTest, TheBestSizeHoldsEverything) {
  const auto best = [this] { return ButtonFace(*button_, look_, {}).BestSize(); };
  look_.caption = "A caption of several words";
  const wxSize text = best();
  EXPECT_GE(text.x, button_->GetTextExtent(look_.caption).x);
  look_.picture = ControlPicture("user");
  const wxSize beside = best();
  EXPECT_GE(beside.x, text.x + button_->FromDIP(32));
  look_.picturePosition = PicturePosition::Top;
  EXPECT_GE(best().y, beside.y + button_->GetTextExtent("A").y);
  look_.caption += "\nand another line";
  EXPECT_GT(best().y, beside.y + button_->GetTextExtent("A").y);
  look_.caption.clear();
  look_.pictureWidth = 100;
  look_.pictureHeight = 50;
  const wxSize stretched = best();
  look_.pictureSize = PictureSize::Fitted;
  EXPECT_EQ(stretched.x - best().x, button_->FromDIP(50)) << "the drawing is as wide as high";
  look_.pictureSize = PictureSize::Own;
  EXPECT_EQ(stretched - best(), button_->FromDIP(wxSize(68, 18)));
  button_->SetCaption("wider");
  const int narrow = button_->GetBestSize().x;
  button_->SetCaption("a caption that is wider than the one before it by far");
  EXPECT_GT(button_->GetBestSize().x, narrow);
}

TEST_F(MyButtonFaceTest, WhatIsOnTheScreenFollows) {
  button_->SetBackColor(kBlue);
  WaitForFace([](const wxImage& face) { return At(face, 0, 0) == kBlue.Resolve(); }, "the new colour");
  const wxImage idle = Face();
  button_->SetDefault();
  WaitForFace([&](const wxImage& face) { return At(face, 0, 0) != kBlue.Resolve(); },
              "the default button's border");
  dialog_->SetDefaultItem(nullptr);
  WaitForFace([&](const wxImage& face) { return AreEqual(face, idle); }, "the end of the border");
  button_->Disable();
  WaitForFace([&](const wxImage& face) { return !AreEqual(face, idle); }, "the disabled face");
}

}  // namespace mindloft::test
