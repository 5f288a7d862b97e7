#include "platform/ui/Direction.h"

namespace mindloft::platform {

void ApplyDirectionInside(wxWindow&) {}

}  // namespace mindloft::platform
