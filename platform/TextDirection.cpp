#include "platform/TextDirection.h"

#include <utf8proc.h>

namespace mindloft::platform {

TextDirection DirectionOf(char32_t character) {
  switch (utf8proc_get_property(static_cast<utf8proc_int32_t>(character))->bidi_class) {
    case UTF8PROC_BIDI_CLASS_L:
    case UTF8PROC_BIDI_CLASS_EN:
    case UTF8PROC_BIDI_CLASS_AN:
      return TextDirection::LeftToRight;
    case UTF8PROC_BIDI_CLASS_R:
    case UTF8PROC_BIDI_CLASS_AL:
      return TextDirection::RightToLeft;
    default:
      return TextDirection::Neutral;
  }
}

}  // namespace mindloft::platform
