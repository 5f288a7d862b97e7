#include "platform/Heap.h"

#include <malloc.h>

namespace mindloft::platform {

void GrowHeapInLargeSteps() {
  // Some six are in use when the main window is there.
  mallopt(M_TOP_PAD, 8 * 1024 * 1024);
}

}  // namespace mindloft::platform
