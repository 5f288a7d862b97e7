#include "platform/ui/ModalFrame.h"

namespace mindloft::platform {

void ShowAboveModal(wxTopLevelWindow&) {}

}  // namespace mindloft::platform
