#include "platform/ThreadPriority.h"

#include <windows.h>

namespace mindloft::platform {

void GiveWay() {
  // A refusal changes nothing but speed.
  SetThreadPriority(GetCurrentThread(), THREAD_PRIORITY_BELOW_NORMAL);
}

}  // namespace mindloft::platform
