#include "platform/ThreadPriority.h"

#include <sys/resource.h>

namespace mindloft::platform {
namespace {

/// A tenth of an ordinary thread's share.
constexpr int kNiceness = 10;

}  // namespace

void GiveWay() {
  // Here a thread has a niceness of its own. A refusal changes nothing but speed.
  setpriority(PRIO_PROCESS, 0, kNiceness);
}

}  // namespace mindloft::platform
