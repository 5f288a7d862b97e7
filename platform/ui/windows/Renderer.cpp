#include "platform/ui/Renderer.h"

namespace mindloft::platform {

// The system's trees draw themselves.
void DrawPartsAsShapes() {}

}  // namespace mindloft::platform
