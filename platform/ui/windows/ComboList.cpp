#include "platform/ui/ComboList.h"

namespace mindloft::platform {

// It always is one.
void DropDownAsList(wxComboBox&) {}

}  // namespace mindloft::platform
