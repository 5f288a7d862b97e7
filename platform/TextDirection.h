#pragma once

namespace mindloft::platform {

/// How a character runs by itself; spaces and marks follow what is around them.
enum class TextDirection { LeftToRight, RightToLeft, Neutral };

TextDirection DirectionOf(char32_t character);

}  // namespace mindloft::platform
