#include "platform/ui/SpinButton.h"

namespace mindloft::platform {

int LeastHeight(const wxSpinButton&) {
  return 0;
}

}  // namespace mindloft::platform
