#include "platform/ui/LabelKeys.h"

namespace mindloft::platform {

// The system's dialogs go by the tab order.
void LeadLabelKeys() {}

}  // namespace mindloft::platform
