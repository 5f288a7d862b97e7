#pragma once

namespace mindloft::texts {

// Numbers of the texts that lists of directory objects and the questions about their fields show.
inline constexpr int kColumnName = 59306;
inline constexpr int kColumnFullName = 59307;
inline constexpr int kColumnDescription = 59308;
inline constexpr int kColumnState = 59309;
inline constexpr int kColumnPrivileges = 59310;
inline constexpr int kSearchHint = 61104;
inline constexpr int kStateEnabled = 61105;
inline constexpr int kStateDisabled = 61106;
inline constexpr int kColumnFont = 61961;
inline constexpr int kFontAndSize = 61962;  ///< %1 its name, %2 its size
inline constexpr int kFontBold = 61964;
inline constexpr int kFontItalic = 61965;
inline constexpr int kFontUnderlined = 61966;
inline constexpr int kFontStruckThrough = 61967;
inline constexpr int kWindowsFont = 61968;

}  // namespace mindloft::texts
