#include "platform/ui/Fonts.h"

#include <fontconfig/fontconfig.h>

#include <future>

namespace mindloft::platform {

void BeginLoadingFonts() {
  // Kept until the program's end, which waits for it.
  static const std::future<void> loading = std::async(std::launch::async, [] { FcInit(); });
}

}  // namespace mindloft::platform
