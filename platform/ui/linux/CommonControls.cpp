#include "platform/ui/CommonControls.h"

namespace mindloft::platform {

bool InitExtendedComboBoxes() {
  return true;
}

}  // namespace mindloft::platform
