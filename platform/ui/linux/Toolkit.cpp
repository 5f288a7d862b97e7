#include "platform/ui/Toolkit.h"

#include "platform/ui/AccessKeys.h"

namespace mindloft::platform {

void MendToolkit() {
  LeadAccessKeys();
}

}  // namespace mindloft::platform
