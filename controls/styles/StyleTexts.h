#pragma once

namespace mindloft::texts {

// Numbers of the texts that the preview of a style and the choice of one show.
inline constexpr int kStyleNotAccepted = 1001;
inline constexpr int kEmptyStyle = 59273;
inline constexpr int kFontNotInstalled = 61950;  ///< %1 the font
inline constexpr int kStyleDamaged = 61951;      ///< %1 the style
inline constexpr int kSampleText = 61952;        ///< %1 a line break

}  // namespace mindloft::texts
