#pragma once

namespace mindloft::texts {

// Numbers of the texts that the editor of styles shows.
inline constexpr int kStyleNameIsBlank = 51102;
inline constexpr int kNewStyle = 61953;
inline constexpr int kRemoveStyle = 61954;      ///< %1 its name
inline constexpr int kRemoveUsedStyle = 61955;  ///< %1 its name, %2 the number of its domains
inline constexpr int kRemoveTitle = 61956;
inline constexpr int kAlignStandard = 61957;
inline constexpr int kAlignRight = 61958;
inline constexpr int kAlignCentred = 61959;
inline constexpr int kFieldLook = 61960;
inline constexpr int kNumberOutside = 61963;  ///< %1 the field, %2 and %3 the least and the greatest

}  // namespace mindloft::texts
