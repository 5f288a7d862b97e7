#include "platform/Heap.h"

namespace mindloft::platform {

void GrowHeapInLargeSteps() {}

}  // namespace mindloft::platform
