#include "platform/SystemLocale.h"

#include <windows.h>

namespace mindloft::platform {

std::uint32_t RealSystemDefaultLocale() {
  return GetSystemDefaultLCID();
}

}  // namespace mindloft::platform
