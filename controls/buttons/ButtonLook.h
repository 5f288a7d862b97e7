#pragma once

#include <wx/string.h>

#include <cstdint>

#include "controls/bag/ControlColour.h"
#include "controls/bag/ControlPicture.h"

namespace mindloft {

// The values of MyButton's properties that are numbers. Any other value counts as the first of its kind.

/// Where the picture stands relative to the caption. Left and right are those of a text that runs from left
/// to right; in the other direction they change places.
namespace PicturePosition {
inline constexpr std::int16_t Left = 1;
inline constexpr std::int16_t Right = 2;
inline constexpr std::int16_t Top = 3;
inline constexpr std::int16_t Bottom = 4;
}  // namespace PicturePosition

/// How large the picture is drawn.
namespace PictureSize {
inline constexpr std::int16_t Stretched = 1;  ///< PictureWidth by PictureHeight
inline constexpr std::int16_t Own = 0;        ///< its own size
inline constexpr std::int16_t Fitted =
    2;  ///< as large as PictureWidth and PictureHeight let it, in proportion
}  // namespace PictureSize

/// Where caption and picture together stand on the face.
namespace CaptionPosition {
inline constexpr std::int16_t Middle = 0;
inline constexpr std::int16_t Left = 1;
inline constexpr std::int16_t Right = 2;
inline constexpr std::int16_t Top = 3;
inline constexpr std::int16_t Bottom = 4;
}  // namespace CaptionPosition

/// What decides a MyButton's face besides its state and font. The properties' meanings stand with MyButton.
struct ButtonLook {
  ControlColour backColor = kButtonFaceColour;
  ControlColour foreColor = kButtonTextColour;
  bool showFocusRect = true;
  bool showBorderOnFocus = true;
  wxString caption;
  std::int16_t captionPosition = CaptionPosition::Middle;
  std::int16_t picturePosition = PicturePosition::Left;
  ControlPicture picture;
  ControlPicture pictureHover;
  std::int16_t pictureWidth = 32;
  std::int16_t pictureHeight = 32;
  std::int16_t pictureSize = PictureSize::Stretched;
  std::int16_t raised = 0;
  std::int16_t borderEdged = 0;
  ControlColour borderEdgedColor = kButtonFaceColour;
  std::int16_t xpStyle = 0;
  ControlColour xpColorPressed = k3DHighlightColour;
  ControlColour xpColorHover = k3DLightColour;
  std::int16_t xpDefaultColors = 1;
};

/// How a MyButton is at the moment.
struct ButtonState {
  bool enabled = true;
  bool hovering = false;
  bool pressed = false;
  bool focused = false;
  bool isDefault = false;  ///< the form's default button
  bool mirrored = false;   ///< right to left
};

}  // namespace mindloft
