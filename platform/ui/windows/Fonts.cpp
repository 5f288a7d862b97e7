#include "platform/ui/Fonts.h"

namespace mindloft::platform {

// The system keeps the fonts of all programs.
void BeginLoadingFonts() {}

}  // namespace mindloft::platform
