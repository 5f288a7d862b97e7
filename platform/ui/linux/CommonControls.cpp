#include "platform/ui/CommonControls.h"

namespace mindloft::platform {

bool InitExtendedComboBoxes() {
  return true;
}

bool UseSystemControls() {
  return true;
}

}  // namespace mindloft::platform
