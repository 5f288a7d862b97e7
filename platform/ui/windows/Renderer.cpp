#include "platform/ui/Renderer.h"

namespace mindloft::platform {

// The system's trees draw themselves.
void DrawTreeButtonsAsShapes() {}

}  // namespace mindloft::platform
