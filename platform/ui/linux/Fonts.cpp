#include "platform/ui/Fonts.h"

#include <fontconfig/fontconfig.h>

#include "platform/Beside.h"

namespace mindloft::platform {

void BeginLoadingFonts() {
  QueueBeside([] { FcInit(); });
}

}  // namespace mindloft::platform
